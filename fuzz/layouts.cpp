#include "LayoutCoder.h"

#include <QStringDecoder>

#include <cstdint>
#include <cstdlib>

/// Whatever is stored, decoding it does not crash, and a list that was decoded has one form, which decodes to the same
/// list and encodes to itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // A byte-order mark is part of what is stored, and reaches the decoder.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString stored = utf8(QByteArrayView(data, qsizetype(size)));
    const auto layouts = LayoutCoder::decode(stored);
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
