#pragma once

/// The process that this start would double: each role has one in a session.
namespace RunningInstance {

/// Hands this start over to the process that runs in its role, and waits until that has come to the front. False where
/// there is none: from now on this process is the one.
bool takesOver();

}
