// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/searchbox.h"

#include "shell/controls/pastefilter.h"
#include "shell/look/theme.h"

#include <QAction>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

SearchBox::SearchBox(const QString &name, const QString &words, const QString &tip, QWidget *parent)
    : QLineEdit(parent)
{
    setObjectName(name);
    setPlaceholderText(words);
    setAccessibleName(words);
    setToolTip(tip);
    setClearButtonEnabled(true);
    new PasteFilter(this, Characters::All); // what no file can hold is simply not found
    addAction(Icons::icon("search"_L1, Theme::of(this).scheme), LeadingPosition)->setText(words);
    if (auto *clearing = findChild<QAction *>("_q_qlineeditclearaction"_L1))
        clearing->setText(u"Clear the search"_s);
}

void SearchBox::startAgain()
{
    setFocus();
    selectAll();
}

void SearchBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::OtherFocusReason)
        selectAll();
}

void SearchBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
    } else if (event->key() == Qt::Key_Down) {
        if (m_target)
            m_target->setFocus();
        emit leftDown();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}
