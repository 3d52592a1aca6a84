#pragma once

#include "StateFile.h"

#include <QVariantMap>

#include <chrono>
#include <memory>

/// Writes copies of the settings into a file, beside the main thread: a disk that hangs holds up nobody. One copy is
/// written at a time; of those that are asked for meanwhile only the last one is written after it.
class StoreCopyWriter {
public:
    explicit StoreCopyWriter(const StateFile &file);

    /// Begins to write the values, unless the file has exactly them. Where there is no file, none is made for no
    /// values.
    void write(const QVariantMap &values);

    /// Waits until nothing is left to be written, as long as that and no longer; false when something is. The end of
    /// the process then cuts it short, and the file stays as it is.
    bool finish(std::chrono::milliseconds limit);

private:
    struct Work;

    /// The thread that writes has it too, and may outlive this object.
    std::shared_ptr<Work> m_work;
};
