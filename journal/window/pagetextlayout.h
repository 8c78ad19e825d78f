// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/hangingtext.h"

#include <functional>

/// Lays out a plain text in which some lines have room above them, for a picture, and the rows of lists hang.
class PageTextLayout final : public HangingText
{
public:
    /// How much room a line has above it, in pixels.
    using RoomAbove = std::function<int(const QTextBlock &)>;

    PageTextLayout(QTextDocument *document, RoomAbove roomAbove);

    QRectF blockBoundingRect(const QTextBlock &block) const override;

protected:
    double insetOf(const QTextBlock &line, const QTextLine &first) const override;

private:
    RoomAbove m_roomAbove;
};
