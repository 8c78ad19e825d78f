// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <utility>
#include <vector>

/// A part of a line in one style, in the places of the line as it is typed.
struct MarkedRun {
    qsizetype at = 0;
    qsizetype length = 0;
    bool isBold = false;
    bool isItalic = false;

    bool operator==(const MarkedRun &) const = default;
};

/// What the light marks of a line say: how it is shown, and which of its characters are signs.
struct MarkedLine {
    enum Kind { Plain, Heading, List, Picture };

    Kind kind = Plain;
    int indent = 0;                                       ///< of a list, from 0
    int picture = 0;                                      ///< which picture stands here, from 1
    qsizetype begin = 0;                                  ///< where the text begins, behind "# " or "  - "
    std::vector<MarkedRun> runs{};                        ///< from there to the end, without the signs
    std::vector<std::pair<qsizetype, qsizetype>> signs{}; ///< asterisks: where, and how many

    bool operator==(const MarkedLine &) const = default;
};

/// Plain text with four light marks: "**bold**", "*italic*", a line that begins with "# " (a heading) or "- "
/// (a list, two blanks or a tab in front for each step to the right). A line "[picture 2]" holds the place of
/// a picture.
namespace LightMarks {

/// How many steps to the right are told apart.
inline constexpr int mostIndent = 6;

MarkedLine of(QStringView line);

/// What is read of the line: without the signs and what stands before its text.
QString plain(QStringView line);

/// The line that holds the place of a picture, from 1.
QString picture(int number);

} // namespace LightMarks
