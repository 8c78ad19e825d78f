// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextDocumentLayout>
#include <QTextBlock>

#include <functional>

/// Lays out a plain text in which some lines have room above them, for a picture, and the rows of lists hang.
class PageTextLayout final : public QPlainTextDocumentLayout
{
public:
    /// How much room a line has above it, in pixels.
    using RoomAbove = std::function<int(const QTextBlock &)>;

    PageTextLayout(QTextDocument *document, RoomAbove roomAbove);

    QRectF blockBoundingRect(const QTextBlock &block) const override;

private:
    static bool hang(QTextBlock block, QTextLayout &layout);

    RoomAbove m_roomAbove;
};
