// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/bytelimit.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBoundaryFinder>
#include <QTextCursor>

#include <algorithm>

namespace {

int bytesOf(const QString &text)
{
    return int(text.normalized(QString::NormalizationForm_C).toUtf8().size());
}

} // namespace

QString ByteLimit::fitting(const QString &text, int bytes)
{
    if (bytesOf(text) <= bytes)
        return text;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    while (letters.toNextBoundary() > 0 && bytesOf(text.left(letters.position())) <= bytes)
        end = letters.position();
    return text.left(end);
}

/// What was typed last goes, wherever the cursor stands.
ByteLimit::ByteLimit(QLineEdit *box, int bytes)
    : QObject(box)
{
    connect(box, &QLineEdit::textEdited, this, [this, box, bytes](const QString &text) {
        if (bytesOf(text) <= bytes)
            return;
        const QString behind = text.mid(box->cursorPosition());
        const QString before = fitting(text.left(box->cursorPosition()), bytes - bytesOf(behind));
        const QString taken = bytesOf(behind) > bytes ? fitting(text, bytes) : before + behind;
        box->setText(taken);
        box->setCursorPosition(int(std::min(before.size(), taken.size())));
        emit reached(bytes);
    });
}

ByteLimit::ByteLimit(QPlainTextEdit *box, int bytes)
    : QObject(box)
{
    connect(box, &QPlainTextEdit::textChanged, this, [this, box, bytes] {
        const QString text = box->toPlainText();
        if (bytesOf(text) <= bytes || box->isReadOnly())
            return;
        QTextCursor cursor = box->textCursor();
        const QString behind = text.mid(cursor.position());
        const int room = bytes - bytesOf(behind);
        const QString before = fitting(text.left(cursor.position()), std::max(0, room));
        cursor.setPosition(int(before.size()), QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        emit reached(bytes);
    });
}
