#include "Commands.h"
#include "NativePlatform.h"
#include "Platform.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    NativePlatform::secureStreams();
    const QCoreApplication application(argc, argv);
    Platform::install(NativePlatform::make());
    return Commands::run(Call::from(QCoreApplication::arguments().sliced(1)));
}
