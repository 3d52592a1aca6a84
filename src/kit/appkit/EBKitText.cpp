#include "EBKitText.h"

EBKitText::Attributed EBKitText::attributed() const
{
    Attributed result{string, {}, QTextOption(alignment)};
    result.characters.setFont(font);
    result.characters.setForeground(color.current());
    result.characters.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    result.characters.setFontLetterSpacing(kern);
    result.paragraph.setWrapMode(QTextOption::WordWrap);
    return result;
}
