#include "StoreCopy.h"

#include <QCryptographicHash>

#include <cstdint>
#include <cstdlib>

namespace {

void check(const QByteArray &bytes)
{
    const auto values = StoreCopy::decode(bytes);
    if (values && StoreCopy::decode(StoreCopy::encode(*values)) != values)
        std::abort();
}

}

/// Whatever is in the file, decoding it does not crash, and values that were decoded encode to something that decodes
/// to the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    check(bytes);
    // No mutation hits a checksum, so it is given the right one.
    check("corvane-settings 1 " + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() + '\n' + bytes);
    return 0;
}
