#pragma once

/// The types of Qt Quick itself.
namespace QuickTypes {

/// Registers them, so that the first import need not do it in the middle of loading the views. May be called on any
/// thread, once a process, and before there is an application object; no view may be loaded before it has ended. Where
/// Qt's private headers were missing when this was built, it does nothing, and the import does it as ever.
void registerNow();

}
