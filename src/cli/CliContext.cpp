#include "cli/CliContext.h"

#include "base/Error.h"

namespace quillford {

void CliContext::print(const QByteArray& text) {
    constexpr int DeviceError = 57; // the runtime's number for a device that fails
    if (output.write(text) != text.size())
        throw Error(DeviceError, output.errorString(), QStringLiteral("standard output"));
}

} // namespace quillford
