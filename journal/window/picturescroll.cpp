// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/picturescroll.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

double heightOf(const QTextBlock &line)
{
    return line.document()->documentLayout()->blockBoundingRect(line).height();
}

} // namespace

PictureScroll::PictureScroll(QPlainTextEdit &text, RoomAbove roomAbove)
    : QObject(&text)
    , m_text(text)
    , m_roomAbove(std::move(roomAbove))
{
    connect(text.verticalScrollBar(), &QScrollBar::valueChanged, this, &PictureScroll::follow);
    connect(text.verticalScrollBar(), &QScrollBar::rangeChanged, this, &PictureScroll::keepRange);
    text.viewport()->installEventFilter(this);
}

/// What the box takes for the last line's place.
int PictureScroll::pageHeight() const
{
    return m_text.viewport()->height() - m_hidden - int(m_text.document()->documentMargin()) - 1;
}

/// The line at the top, where it begins with its picture.
QTextBlock PictureScroll::topPicture() const
{
    const int top = m_text.verticalScrollBar()->value();
    const QTextBlock line = m_text.document()->findBlockByLineNumber(top);
    return line.isValid() && line.firstLineNumber() == top && m_roomAbove(line) > 0 ? line : QTextBlock();
}

/// All of the picture at the top; at the end of the text as much as brings the last line into sight.
int PictureScroll::mostHidden() const
{
    QTextBlock line = topPicture();
    if (!line.isValid())
        return 0;
    const int room = m_roomAbove(line);
    double below = line.blockNumber() == 0 ? m_text.document()->documentMargin() : 0;
    for (; line.isValid() && below < pageHeight() + room; line = line.next())
        below += heightOf(line);
    return std::clamp(int(std::ceil(below)) - pageHeight(), 0, room);
}

/// The line that is at the top when the end of the text is in sight.
int PictureScroll::lastTop() const
{
    double above = -pageHeight();
    for (QTextBlock line = m_text.document()->lastBlock(); line.isValid(); line = line.previous()) {
        above += heightOf(line);
        if (above <= 0)
            continue;
        int row = 0;
        while (row < line.layout()->lineCount() && line.layout()->lineAt(row).naturalTextRect().top() < above)
            ++row;
        return std::min(line.firstLineNumber() + row, m_text.document()->lineCount() - 1);
    }
    return 0;
}

void PictureScroll::hide(int pixels)
{
    if (std::exchange(m_hidden, pixels) != pixels)
        emit hiddenChanged();
}

/// With all of its picture on the page.
void PictureScroll::setTop(int line)
{
    const QScopedValueRollback<bool> moving(m_isMoving, true);
    hide(0);
    m_text.verticalScrollBar()->setValue(line);
}

/// The box, or its bar, has gone to another line.
void PictureScroll::follow(int line)
{
    if (m_isMoving)
        return;
    const QScopedValueRollback<bool> moving(m_isMoving, true);
    const bool isEnd = line == m_text.verticalScrollBar()->maximum();
    hide(0);
    if (isEnd)
        hide(mostHidden());
}

/// The box reckons with what is above the page, too.
void PictureScroll::keepRange()
{
    if (m_hidden == 0)
        return;
    if (const int last = lastTop(); m_text.verticalScrollBar()->maximum() < last)
        m_text.verticalScrollBar()->setMaximum(last);
}

void PictureScroll::settle()
{
    if (m_hidden > 0)
        hide(std::min(m_hidden, mostHidden()));
}

/// The box takes a line for whole where only its caption is to be seen.
void PictureScroll::showCursor()
{
    settle();
    m_text.ensureCursorVisible();
    if (const int below = m_text.cursorRect().bottom() + 1 - m_text.viewport()->height(); below > 0)
        goDown(below);
}

void PictureScroll::goDown(int pixels)
{
    const QScrollBar *bar = m_text.verticalScrollBar();
    while (pixels > 0) {
        if (const int step = std::min(pixels, mostHidden() - m_hidden); step > 0) {
            hide(m_hidden + step);
            pixels -= step;
            continue;
        }
        keepRange();
        if (bar->value() == bar->maximum())
            return;
        pixels -= m_text.fontMetrics().lineSpacing();
        setTop(bar->value() + 1);
    }
}

void PictureScroll::goUp(int pixels)
{
    const QScrollBar *bar = m_text.verticalScrollBar();
    while (pixels > 0 && (m_hidden > 0 || bar->value() > 0)) {
        if (const int step = std::min(pixels, m_hidden); step > 0) {
            hide(m_hidden - step);
            pixels -= step;
            continue;
        }
        pixels -= m_text.fontMetrics().lineSpacing();
        setTop(bar->value() - 1);
        hide(mostHidden());
    }
}

bool PictureScroll::eventFilter(QObject *watched, QEvent *event)
{
    return (event->type() == QEvent::Wheel && turn(*static_cast<QWheelEvent *>(event))) ||
           QObject::eventFilter(watched, event);
}

/// A notch goes as far where a picture comes as it goes in a text.
bool PictureScroll::turn(const QWheelEvent &event)
{
    const int turned = event.angleDelta().y();
    if (turned == 0 || event.modifiers() != Qt::NoModifier)
        return false;
    const int lines = QApplication::wheelScrollLines();
    QTextBlock line = m_text.document()->findBlockByLineNumber(m_text.verticalScrollBar()->value());
    bool comesPicture = false;
    for (int i = 0; i <= lines && line.isValid() && !comesPicture; ++i) {
        comesPicture = m_roomAbove(line) > 0;
        line = turned < 0 ? line.next() : line.previous();
    }
    if (!comesPicture)
        return false;
    const int pixels =
        std::abs(turned) * lines * m_text.fontMetrics().lineSpacing() / QWheelEvent::DefaultDeltasPerStep;
    turned < 0 ? goDown(pixels) : goUp(pixels);
    return true;
}
