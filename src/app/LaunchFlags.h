#pragma once

/// What this start was asked for: whole words among the process's arguments.
namespace LaunchFlags {

/// Keeps the process's own arguments; to be called before the functions below. Qt is not given them, since it has
/// options of its own.
void setArguments(int argc, char *argv[]);

/// "--onboarding": run the onboarding guide. It goes before `about`.
bool onboarding();

/// "--about": show only the About window.
bool about();

/// "--replay": the onboarding guide is shown once more, to somebody who knows it.
bool replay();

/// "--service": started by the desktop, which goes on to say what it wants. Without a meaning in the roles of the two
/// flags above.
bool service();

}
