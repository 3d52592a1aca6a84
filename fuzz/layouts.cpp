#include "LayoutCoder.h"

#include <cstdint>
#include <cstdlib>

/// Whatever is stored, decoding it does not crash, and a list that was decoded has one form, which decodes to the same
/// list and encodes to itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto layouts = LayoutCoder::decode(QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size)));
    if (!layouts)
        return 0;
    const auto text = LayoutCoder::encode(*layouts);
    if (!text)
        std::abort();
    const auto again = LayoutCoder::decode(*text);
    if (!again || *again != *layouts || LayoutCoder::encode(*again) != text)
        std::abort();
    return 0;
}
