#pragma once

/// What the person, or another process, asked this start for: whole words among the process's arguments.
namespace LaunchFlags {

/// The process's own arguments, before anything else is asked. The toolkit is not given them: it has options of its
/// own.
void setArguments(int argc, char *argv[]);

/// "--onboarding": run the onboarding guide. It goes before `about`.
bool onboarding();

/// "--about": show only the About window.
bool about();

/// "--replay": the onboarding guide is shown once more, to somebody who knows it.
bool replay();

}
