#pragma once

/// What the person, or another process, asked this start for. Read once from the arguments, whole words only.
namespace LaunchFlags {

/// "--onboarding": run the onboarding guide. It goes before `about`.
bool onboarding();

/// "--about": show only the About window.
bool about();

}
