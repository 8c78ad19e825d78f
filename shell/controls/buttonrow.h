// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class LowWindow;
class QLabel;
class QPushButton;

/// The row of buttons in a panel's foot: rare or dangerous ones at the left with a few quiet words behind
/// them, the rest at the right. Where they do not fit side by side, the right group takes a second row; in a
/// low window a button "More" takes the place of those at the left that have no room beside it.
class ButtonRow final : public QWidget
{
    Q_OBJECT
public:
    explicit ButtonRow(QWidget *parent = nullptr);

    /// Tab goes through the buttons from left to right.
    void addLeft(QPushButton *button) { add(button, m_left); }
    void addRight(QPushButton *button) { add(button, m_right); }
    /// Tab comes to them behind `before`.
    void standBehind(QWidget *before);
    /// Quiet words behind the left group; empty takes them away.
    void setWords(const QString &words);
    /// Call after buttons were shown, hidden or renamed.
    void rearrange();

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Words that have no room in the row and must stand elsewhere; empty when they have, or when there are
    /// none.
    void wordsLeftOut(const QString &words);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void add(QPushButton *button, QList<QPushButton *> &group);
    int groupWidth(const QList<QPushButton *> &group) const;
    int leftWidth() const;
    int behindLeft() const;
    bool haveWordsRoom() const;
    bool fitsOneRow(int width) const;
    bool takesOneRow(int width) const;
    int rowHeight() const;
    void holdWhatHasNoRoom();
    void openMore();
    void place(const QList<QPushButton *> &group, int x, int y) const;

    QList<QPushButton *> m_left;
    QList<QPushButton *> m_right;
    QList<QPushButton *> m_held; ///< by "More"
    QLabel *m_words;
    LowWindow *m_low;
    QPushButton *m_more;
    QString m_text;
};
