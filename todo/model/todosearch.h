// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

/// Words that are looked for in the bytes of texts and notes, ten thousand at a keystroke. Upper and lower
/// case are alike.
class ToDoSearch
{
public:
    /// Words are separated by blanks; all of them must be there.
    explicit ToDoSearch(const QString &words);

    bool isEmpty() const { return m_words.isEmpty(); }
    /// Whether each word is in one of the two, which are UTF-8.
    bool finds(QByteArrayView text, QByteArrayView note) const;

private:
    struct Word {
        QString text;
        QByteArray lower; ///< empty where it is not of plain letters
    };

    static bool holds(QByteArrayView bytes, const Word &word);

    QList<Word> m_words;
};
