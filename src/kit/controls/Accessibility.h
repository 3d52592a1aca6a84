#pragma once

/// Corrects, for every item of this process, what Qt Quick tells assistive technologies wrongly:
/// - a disabled item says that it is disabled and cannot take the focus, offers no actions and takes none, and
///   announces the change when it is enabled or disabled;
/// - a text does not claim that it can take the focus;
/// - an action is offered once, and taking the focus after the others;
/// - an item does not show where it or one around it declares so with `EBAccessible`, and offers the actions that stand
///   in it (`AccessibleAction`);
/// - the application has the name in its bundle.
///
/// To be called once, after the application object is made and before the first window is; again it does nothing.
void installKitAccessibility();
