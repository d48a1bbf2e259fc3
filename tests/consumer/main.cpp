// One call into each library, by the names under which their headers are offered.
#include "DPIinfo.h"
#include "lib/config.h"
#include "lib/file/file-op.h"
#include "lib/log.h"
#include "lib/platform/platform.h"
#include "lib/tmp_name_gen.h"
#include "lib/utils/StringHelper.h"
#include "mac/mac-service.h"
#include "strtable.h"

int main() {
    StrTable::InitStrTable();
    const bool works = DPIinfo::getInstance()->getDPI() == 1.0 && FSBaseName("/a/b") == "b" &&
                       Logger::GetCompLevel("consumer") == 4 && PlatformDesignDpi() > 0 &&
                       corvimo::utils::StringHelper::IsValid("é") &&
                       TmpNameGen::getInstance()->getTmpName().size() == 8 &&
                       StrTable::LookupStrID("app_name_corvimo_client") == StrTable::kAppName;
    return works ? 0 : 1;
}
