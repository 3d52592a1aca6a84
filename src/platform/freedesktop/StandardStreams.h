#pragma once

namespace StandardStreams {

/// Opens those of the three that the process was started without: the next file to be opened would get the number, and
/// what is printed would go there, into the connection to the display for instance. Also lets the process outlive
/// whoever read what it prints. To be called before anything opens a file.
void secure();

}
