// SPDX-License-Identifier: MIT
/// @file
/// What hosts hand to charts: the ordinary, the rare and the hostile, by chance.
#ifndef TOVANGL_DIFFERENCES_RANDOM_INPUTS_H
#define TOVANGL_DIFFERENCES_RANDOM_INPUTS_H

#include "support/CDice.h"

#include <string>
#include <utility>

namespace tovangl {

/// The inputs of one chart. Its items have values of one style, and texts of one style.
class CRandomInputs
{
public:
    explicit CRandomInputs(CDice& dice);

    [[nodiscard]] int itemCount();
    [[nodiscard]] long value();
    [[nodiscard]] std::string text();
    /// One in eight has channels that are none.
    [[nodiscard]] Color color();
    /// Per cent. Equal values often have exactly that share.
    [[nodiscard]] double threshold();
    [[nodiscard]] std::string fontFamily();
    [[nodiscard]] int fontSize();
    /// Language and country.
    [[nodiscard]] std::pair<std::string, std::string> locale();
    /// Any sum of the bits of an axis or of a pie, and of bits that mean nothing.
    [[nodiscard]] int properties();
    /// A place or a length in pixels.
    [[nodiscard]] int pixels();
    /// A picture's width or height.
    [[nodiscard]] int side();
    [[nodiscard]] int printFactor();

private:
    enum class ValueStyle
    {
        Small,
        AnyLength,
        Bytes,
        Equal,
        OneDominates,
        Negative,
        Extreme
    };
    enum class TextStyle
    {
        Names,
        AnyScript,
        Repetition,
        Hostile
    };

    [[nodiscard]] ValueStyle rollValueStyle();
    [[nodiscard]] TextStyle rollTextStyle();
    [[nodiscard]] std::string repetition(int longest);
    [[nodiscard]] std::string randomBytes();

    CDice& m_dice;
    ValueStyle m_valueStyle;
    TextStyle m_textStyle;
    long m_equalValue;
    int m_itemCount = 0; // the last one that was told
};

} // namespace tovangl

#endif
