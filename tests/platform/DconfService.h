#pragma once

#include <QString>

/// What a test does to the service that writes dconf's database, on the bus of this process.
namespace DconfService {

/// Its process; it is started where it does not run.
pid_t process();

/// False: it can write no file, as on a full disk.
void setHasRoom(bool hasRoom);

/// True: it stands still, and whoever asks it waits.
void setHangs(bool hangs);

/// Writes to `folder` a profile in which the administrator has locked that path, and returns its file.
QString makeLock(const QString &path, const QString &folder);

}
