// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QObject>

#include <functional>

class QDropEvent;
class QLineEdit;
class QMenu;
class QPoint;

/// Which characters a box takes: all, or those of the files' code page.
enum class Characters { All, OfTheFiles };

/// Whether `character` is a line end, a tab or the like, which a one-line box shows as a blank.
bool isControl(QChar character);

/// Takes text into a one-line box that is pasted or dropped there, whichever way: what the box cannot hold is
/// left out character by character, line ends between words become one blank, and one undo takes it all back.
class PasteFilter final : public QObject
{
    Q_OBJECT
public:
    /// Belongs to `box`, whose `maxLength()` is its limit.
    PasteFilter(QLineEdit *box, Characters characters);

    /// Asks `taker` first; what it takes, answering true, does not come into the box.
    void setTaker(const std::function<bool(const QString &)> &taker) { m_taker = taker; }

    /// The usual menu of the box, whose Paste takes what the box can hold; to be deleted.
    QMenu *makeMenu();

signals:
    /// Not all of the text was taken: for the characters `foreign` to the code page, because the box was full
    /// before its end, which was `cutOff`, or for both.
    void leftOut(const QString &foreign, const QString &cutOff);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void paste();
    void pasteSelection();
    void showMenu(QPoint place);
    void drop(QDropEvent &event);
    void take(const QString &offered);
    void insertAsOneStep(const QString &text);

    QLineEdit *m_box;
    Characters m_characters;
    std::function<bool(const QString &)> m_taker;
};
