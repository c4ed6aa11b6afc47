#include "fuzztarget.h"

#include "framework/common/versioninfo.h"

// The update service's answer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const VersionInfo info = VersionInfo::fromJson(FuzzTarget::bytes(data, size));
    FuzzTarget::require(info == VersionInfo::fromJson(FuzzTarget::bytes(data, size)),
                        "an answer has one meaning");
    return 0;
}
