// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/undokeys.h"

#include "shell/frame/commonkeys.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

namespace {

struct Available {
    bool undo = false;
    bool redo = false;
};

Available availableIn(const QWidget *box)
{
    if (const auto *texts = qobject_cast<const QPlainTextEdit *>(box); texts && !texts->isReadOnly())
        return {texts->document()->isUndoAvailable(), texts->document()->isRedoAvailable()};
    if (const auto *texts = qobject_cast<const QTextEdit *>(box); texts && !texts->isReadOnly())
        return {texts->document()->isUndoAvailable(), texts->document()->isRedoAvailable()};
    const auto *line = qobject_cast<const QLineEdit *>(box);
    if (const auto *list = qobject_cast<const QComboBox *>(box))
        line = list->lineEdit();
    if (qobject_cast<const QAbstractSpinBox *>(box))
        line = box->findChild<QLineEdit *>();
    return line ? Available{line->isUndoAvailable(), line->isRedoAvailable()} : Available{};
}

} // namespace

UndoKeys::UndoKeys(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, &UndoKeys::follow);
}

void UndoKeys::follow(QWidget *before, QWidget *now)
{
    if (before)
        before->removeEventFilter(this);
    if (now && m_window->isAncestorOf(now))
        now->installEventFilter(this);
}

bool UndoKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const QKeySequence key(static_cast<QKeyEvent *>(event)->keyCombination());
    if (key != CommonKeys::undo && key != CommonKeys::redo)
        return QObject::eventFilter(watched, event);
    const Available available = availableIn(qobject_cast<QWidget *>(watched));
    const bool isOfTheBox = key == CommonKeys::undo ? available.undo : available.redo;
    if (event->type() == QEvent::KeyPress) {
        if (!isOfTheBox)
            emit refused(key);
        return !isOfTheBox;
    }
    event->setAccepted(isOfTheBox);
    return true;
}
