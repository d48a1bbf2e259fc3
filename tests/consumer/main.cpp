// One call into each library, by the names under which their headers are offered.
#include <cstdio>
#include <string>

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
    using corvimo::utils::StringHelper;
    StrTable::InitStrTable();
    const bool works = DPIinfo::getInstance()->getDPI() == 1.0 && Config().entries.empty() &&
                       FSBaseName("/a/b") == "b" && Logger::GetCompLevel("consumer") == 4 &&
                       PlatformDesignDpi() > 0 && StringHelper::IsValid("é") &&
                       StrTable::LookupStrID("app_name_corvimo_client") == StrTable::kAppName;
    std::puts(works ? "The libraries work." : "The libraries do not work.");
    return works ? 0 : 1;
}
