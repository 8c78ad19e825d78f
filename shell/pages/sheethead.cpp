// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/sheethead.h"

#include "shell/pages/sharpline.h"

#include <QPainter>

namespace {

constexpr double rule = 0.75;
constexpr double thin = 0.5;
constexpr double headGap = 20;  ///< between the title and what stands at the right
constexpr double titleGap = 12; ///< from the rule under the title to the body
constexpr double chapterDrop = 30;
constexpr double chapterGap = 22;
constexpr double runningGap = 16;
constexpr qsizetype titleLines = 4;
constexpr QColor ruleColor(0x9A, 0x9A, 0x9A);

} // namespace

SheetHead::SheetHead(const PageLayout &layout, int number)
    : m_layout(layout)
    , m_number(number)
    , m_body(layout.body())
{}

double SheetHead::place(QPainter *painter) const
{
    if (m_layout.page().heads() == SheetHeads::Title)
        return placeTitle(painter);
    if (m_layout.isInSection(m_number))
        return m_layout.beginsSection(m_number) ? placeChapter(painter) : placeRunning(painter);
    return m_body.top();
}

double SheetHead::placeTitle(QPainter *painter) const
{
    const Page &page = m_layout.page();
    double y = m_body.top();
    if (page.title().isEmpty() && page.headRight().isEmpty())
        return y;
    const PageType &title = m_layout.types().title;
    const PageType &right = m_layout.types().headRight;
    const QString head = right.elided(page.headRight(), m_body.width() / 2);
    const QString words = m_layout.headOf(m_number);
    double titleWidth = m_body.width() - (head.isEmpty() ? 0 : right.width(head) + headGap);
    // A title that breaks for what stands beside it, on a small sheet say, has its line for itself.
    const bool isHeadBelow = title.width(words) > titleWidth && title.width(words) <= m_body.width();
    if (isHeadBelow)
        titleWidth = m_body.width();
    for (const QString &line : title.shortened(title.wrapped(words, titleWidth), titleLines, titleWidth)) {
        if (painter)
            title.draw(*painter, {m_body.left(), y}, line);
        y += title.lineHeight();
    }
    // On the title's last line, both on one baseline.
    const double headTop = isHeadBelow ? y : y - title.lineHeight() + title.baseline() - right.baseline();
    y += isHeadBelow ? right.lineHeight() + 3 : 3;
    if (painter) {
        right.draw(*painter, {m_body.left(), headTop}, m_body.width(), Qt::AlignRight, head);
        fillSharpLine(*painter, {m_body.left(), y, m_body.width(), rule}, Qt::black);
    }
    return y + rule + titleGap;
}

double SheetHead::placeChapter(QPainter *painter) const
{
    const PageType &type = m_layout.types().of(TextRole::Chapter);
    double y = m_body.top() + chapterDrop;
    const double width = m_body.width();
    const QString words = m_layout.headOf(m_number);
    for (const QString &line : type.shortened(type.wrapped(words, width), titleLines, width)) {
        if (painter)
            type.draw(*painter, {m_body.left(), y}, line);
        y += type.lineHeight();
    }
    return y + chapterGap;
}

double SheetHead::placeRunning(QPainter *painter) const
{
    const PageType &type = m_layout.types().foot;
    const double half = m_body.width() / 2;
    const double y = m_body.top() + type.lineHeight() + 2;
    if (painter) {
        type.draw(*painter, m_body.topLeft(), type.elided(m_layout.page().title(), half));
        const QString section = type.elided(m_layout.headOf(m_number), half);
        type.draw(*painter, m_body.topLeft(), m_body.width(), Qt::AlignRight, section);
        fillSharpLine(*painter, {m_body.left(), y, m_body.width(), thin}, ruleColor);
    }
    return y + thin + runningGap;
}
