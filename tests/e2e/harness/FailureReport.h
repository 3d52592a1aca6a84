#pragma once

#include <QString>

class Accessible;
class Program;
class Screen;

/// Leaves what the screen, the accessibility tree and the log held when the running test failed in the build
/// folder, under "failures/", and returns the folder.
QString writeFailureReport(const Screen &screen, const Accessible &root, const Program *program);
