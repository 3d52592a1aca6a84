#pragma once

/// Mends, for every item of this process, what Qt Quick tells assistive technologies wrongly:
/// - a disabled item says that it is disabled and cannot take the focus, offers no actions and takes none, and
///   announces the change when it is enabled or disabled;
/// - a text does not claim that it can take the focus;
/// - a tab or an item of a list that can be pressed says so;
/// - an item made from a template has the role that its property `accessibleRole` names (a role of `Accessible`) where
///   it declares one: the templates overrule `Accessible.role`;
/// - an item whose property `accessibleHidden` is true does not show, nor does anything in it;
/// - an item offers the actions that its list `accessibleActions` holds (AccessibleAction);
/// - the application has the name in its bundle.
///
/// To be called once, after the application object is made and before the first window is; again it does nothing.
void installKitAccessibility();
