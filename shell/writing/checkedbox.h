// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/wordbreaks.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>

#include <optional>

class QContextMenuEvent;
class QKeyEvent;
class QMenu;
class QPoint;
class QWidget;
class Writing;

/// A word of a box, and where it stands.
struct AskedWord {
    WordPlace place;
    QString word;
};

/// What spelling adds to a box: it marks wrong words, corrects slips while one types, and offers other words
/// in its menu. Places are counted in the whole text of the box. It bears the name `spellMarks`.
class CheckedBox : public QObject
{
    Q_OBJECT
public:
    /// The words that are marked now.
    virtual QStringList marked() const = 0;

    /// The word at the cursor; nothing beside a word, and in a locked box.
    std::optional<AskedWord> wordAtCursor() const;
    /// Puts `by` in place of `asked`, in a step of its own. False where another word stands there by now.
    bool replaceWord(const AskedWord &asked, const QString &by);
    /// Typing goes on in the box.
    void takeFocus();

protected:
    /// A line of the text, and where it begins.
    struct Line {
        QString text;
        qsizetype begin = 0;
    };

    CheckedBox(Writing &writing, QWidget *box);

    virtual Line lineAt(qsizetype place) const = 0;
    virtual qsizetype cursor() const = 0;
    /// `point`: on the screen.
    virtual qsizetype placeUnder(QPoint point) const = 0;
    virtual bool isLocked() const = 0;
    /// Replaces the word in a step of its own, which one undo takes back; the cursor stays with what it stood
    /// beside. False where the box refuses.
    virtual bool replace(const WordPlace &word, const QString &by) = 0;
    /// Undoes the last step, and puts the cursor at `place`.
    virtual void takeBack(qsizetype place) = 0;
    /// The box's own menu, to be deleted.
    virtual QMenu *usualMenu() const = 0;
    /// Marks anew what is wrong.
    virtual void mark() = 0;
    /// The same where the word stands that is being typed, or was.
    virtual void markAtCursor() { mark(); }

    /// A character was typed before the cursor.
    void typed();
    /// What is typed is taken as it stands: a word that ends at the cursor has ended.
    void taken();
    /// Something else than a single character has changed the text.
    void changedOtherwise() { m_correction.reset(); }
    /// The box shows another text.
    void beginText();
    /// Whether the cursor stands at the end of this word, as when one is still typing it.
    bool isBeingTyped(const WordPlace &word) const;

    Writing &writing() const { return m_writing; }
    QWidget *box() const { return m_box; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Done {
        QString wrong;
        qsizetype cursor;  ///< after the correction
        qsizetype shorter; ///< what the correction has added to the length of the text
    };

    void correctWordBefore(qsizetype end);
    bool takeBackCorrection(const QKeyEvent &key);
    bool showMenu(const QContextMenuEvent &event);
    void addSuggestions(QMenu &menu, const WordPlace &place, const QString &word);
    void addThesaurus(QMenu &menu, const AskedWord &asked);

    Writing &m_writing;
    QWidget *m_box;
    std::optional<Done> m_correction; ///< the last one, while nothing was typed since
    QSet<QString> m_leftAlone;        ///< words whose correction was taken back in this text
    bool m_isWaiting = false;         ///< to be painted
};
