// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/picturescroll.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextDocument>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

PictureScroll::PictureScroll(QPlainTextEdit &text, std::function<bool(const QTextBlock &)> hasPicture)
    : QObject(&text)
    , m_text(text)
    , m_hasPicture(std::move(hasPicture))
{
    connect(text.verticalScrollBar(), &QScrollBar::rangeChanged, this, &PictureScroll::reachEnd);
    text.viewport()->installEventFilter(this);
}

/// The box takes a line for whole where only its caption is to be seen.
void PictureScroll::showCursor()
{
    reachEnd();
    m_text.ensureCursorVisible();
    QScrollBar *bar = m_text.verticalScrollBar();
    while (m_text.cursorRect().bottom() > m_text.viewport()->height() && bar->value() < bar->maximum())
        bar->setValue(bar->value() + 1);
    if (m_text.cursorRect().top() < 0) // in the caption of a picture that is higher than the page
        bar->setValue(bar->value() - 1);
}

/// Else the text below a picture that is cut at the top would never come into sight.
void PictureScroll::reachEnd()
{
    const QTextDocument &document = *m_text.document();
    double room = m_text.viewport()->height() - document.documentMargin() - 1;
    for (QTextBlock line = document.lastBlock(); line.isValid(); line = line.previous()) {
        room -= document.documentLayout()->blockBoundingRect(line).height();
        if (room >= 0)
            continue;
        const int below = std::min(line.firstLineNumber() + 1, document.lineCount() - 1);
        if (m_hasPicture(line) && m_text.verticalScrollBar()->maximum() < below)
            m_text.verticalScrollBar()->setMaximum(below);
        return;
    }
}

bool PictureScroll::eventFilter(QObject *watched, QEvent *event)
{
    return (event->type() == QEvent::Wheel && turn(*static_cast<QWheelEvent *>(event))) ||
           QObject::eventFilter(watched, event);
}

/// A notch goes one line where a picture comes, so that each is seen.
bool PictureScroll::turn(const QWheelEvent &event)
{
    const int turned = event.angleDelta().y();
    QTextBlock line = m_text.cursorForPosition({0, 0}).block();
    bool comesPicture = false;
    for (int i = 0; i < QApplication::wheelScrollLines() && line.isValid(); ++i) {
        comesPicture = comesPicture || m_hasPicture(line);
        line = turned < 0 ? line.next() : line.previous();
    }
    if (turned == 0 || event.modifiers() != Qt::NoModifier || !comesPicture)
        return false;
    m_turned += turned;
    const int lines = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned %= QWheelEvent::DefaultDeltasPerStep;
    m_text.verticalScrollBar()->setValue(m_text.verticalScrollBar()->value() - lines);
    return true;
}
