# The user-interface texts: the rows of the string table and the Qt resource `texts` with one compiled
# translation per language. ui-client/launcher/texts/README.md tells how to add a text or a language.

# corvimo_texts(TARGET)
#   Adds the generated sources to TARGET: strtable_rows.inc, strtable_count.h, and a source that holds
#   the resource and defines qInitResources_texts() and qCleanupResources_texts(). Call it for one
#   target only. The Linguist files that the build makes stay in <build>/texts for translators.
function(corvimo_texts target)
    set(texts_dir ${PROJECT_SOURCE_DIR}/ui-client/launcher/texts)
    set(generated_dir ${PROJECT_BINARY_DIR}/texts)
    set(rows ${generated_dir}/strtable_rows.inc)
    set(count ${generated_dir}/strtable_count.h)
    file(MAKE_DIRECTORY ${generated_dir})

    add_custom_command(OUTPUT ${rows} ${count}
        COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/scripts/generate-texts.py
                rows ${texts_dir}/catalogue.txt ${rows}
        COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/scripts/generate-texts.py
                count ${texts_dir}/catalogue.txt ${count}
        DEPENDS ${texts_dir}/catalogue.txt ${PROJECT_SOURCE_DIR}/scripts/generate-texts.py
        VERBATIM)

    file(GLOB translations CONFIGURE_DEPENDS ${texts_dir}/translations/*.ts)
    _corvimo_compile_language(enu "" ${texts_dir} ${generated_dir})
    set(codes enu)
    foreach(translation IN LISTS translations)
        get_filename_component(code ${translation} NAME_WE)
        _corvimo_compile_language(${code} ${translation} ${texts_dir} ${generated_dir})
        list(APPEND codes ${code})
    endforeach()

    _corvimo_texts_resource(resource ${generated_dir} ${codes})
    target_sources(${target} PRIVATE ${rows} ${resource})
    corvimo_public_headers(${target} ${generated_dir} ${count})
endfunction()

# Makes <generated_dir>/<code>.ts, complete, and <code>.qm from it. Without a translation file every
# text stays English.
function(_corvimo_compile_language code translation texts_dir generated_dir)
    set(generator ${PROJECT_SOURCE_DIR}/scripts/generate-texts.py)
    set(out ${generated_dir}/${code})
    add_custom_command(OUTPUT ${out}.ts ${out}.qm
        COMMAND Python3::Interpreter ${generator}
                ts ${texts_dir}/catalogue.txt ${out}.ts ${translation}
        COMMAND Qt${CORVIMO_QT}::lrelease -silent ${out}.ts -qm ${out}.qm
        DEPENDS ${texts_dir}/catalogue.txt ${generator} ${translation}
        VERBATIM)
endfunction()

# Packs the compiled translations into the root of the resource `texts`; the C++ source that holds it
# is returned in the variable named by `result`.
function(_corvimo_texts_resource result generated_dir)
    set(compiled ${ARGN})
    list(TRANSFORM compiled APPEND .qm)
    set(entries ${compiled})
    list(TRANSFORM entries REPLACE "(.+)" "    <file>\\1</file>\n")
    list(JOIN entries "" entries)
    list(TRANSFORM compiled PREPEND ${generated_dir}/)

    set(index ${generated_dir}/texts.qrc)
    file(CONFIGURE OUTPUT ${index} @ONLY
        CONTENT "<RCC>\n  <qresource prefix=\"/\">\n${entries}  </qresource>\n</RCC>\n")
    set(source ${generated_dir}/texts_resource.cpp)
    add_custom_command(OUTPUT ${source}
        COMMAND Qt${CORVIMO_QT}::rcc --no-compress --name texts --output ${source} ${index}
        DEPENDS ${index} ${compiled}
        VERBATIM)
    set(${result} ${source} PARENT_SCOPE)
endfunction()
