#include "ExportFile.h"
#include "Shared.h"

#include <cstdint>
#include <cstdlib>

namespace {

const QList<Contract::StoreKey> &keys()
{
    static const QList<Contract::StoreKey> list = {
#define STORE_KEY(identifier, name, value, writer, meaning)                                                            \
    Contract::StoreKey{QStringLiteral(name), value, QStringLiteral(writer), QStringLiteral(meaning)},
        CORVANE_STORE_KEYS(STORE_KEY)
#undef STORE_KEY
    };
    return list;
}

}

/// Whatever is imported, reading it does not crash. What is read is what the contract knows, without the agent's state;
/// written as a file it is read back the same, and that file is its own form.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto reading = ExportFile::read({reinterpret_cast<const char *>(data), qsizetype(size)}, keys());
    for (const ExportFile::Fault &fault : reading.faults) {
        if (fault.line < 1 || fault.reason.isEmpty())
            std::abort();
    }
    if (!reading.faults.isEmpty())
        return 0;
    for (const QString &key : reading.settings.keys()) {
        if (Contract::isAgentState(key))
            std::abort();
    }
    const QByteArray file = ExportFile::write(reading.settings);
    const auto again = ExportFile::read(file, keys());
    if (!again.faults.isEmpty() || again.settings != reading.settings || ExportFile::write(again.settings) != file)
        std::abort();
    return 0;
}
