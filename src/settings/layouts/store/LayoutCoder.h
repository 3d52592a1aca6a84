#pragma once

#include "SavedLayout.h"

/// The saved layouts as JSON text, the form in which both the agent and this application store them.
namespace LayoutCoder {

/// Why a text is no list of layouts.
struct Fault {
    /// The line of the text, from 1.
    int line = 0;
    QString reason;
};

/// The layouts `text` holds; none when it is anything but a whole list of layouts.
///
/// A layout without "id", "name" or "created", or with null there, gets a random id, the name "Layout" and the time of
/// the call; a window's "display" may be absent or null. Everything else must be there with its type, and one fault
/// refuses the whole list. Unknown keys are passed over. Of a key that occurs twice in one object the first counts.
/// Refused are also numbers no double can hold, halves of surrogate pairs, and arrays and objects more than 512 deep.
/// A leading byte-order mark is passed over. Takes time in proportion to the text. What is refused is described in
/// `fault`, where one is given.
std::optional<QList<SavedLayout>> decode(const QString &text, Fault *fault = nullptr);

/// The one text that stands for `layouts`: keys sorted, no white space, "/" and control characters escaped, ids in
/// capitals, an absent display left out. None when a number is not finite or a text holds half a surrogate pair.
///
/// A number is written with the fewest digits that read back as the same double: plainly from 0.0001 up to 2^53, below
/// and above with an exponent of at least two digits ("1e-05", "1e+20"). Minus zero stays "-0".
std::optional<QString> encode(const QList<SavedLayout> &layouts);

}
