// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QWidget>

/// A secret while it is shown: large, in letters of one width that cannot be mistaken for each other, digits
/// and signs bold and in colours of their own. It is painted and never text that could be marked and copied;
/// with the focus in it, the arrow keys walk through the characters and each is read out.
class SecretFace final : public QWidget
{
    Q_OBJECT
public:
    explicit SecretFace(QWidget *parent);

    void setSecret(const QString &secret);
    /// Where the next character will be typed; -1 while nothing is typed.
    void setCaret(int place);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QSize cell() const;
    int cellsAcross(int width) const;
    /// The first place of each row; groups and words stay whole where they can.
    QList<int> rowStarts(int across) const;
    /// The place in the row below or above; the same where there is none.
    int placeInRow(int rowsDown) const;
    QRect cellAt(int place) const;
    void nameWhole();
    void readOut();

    QList<uint> m_characters;
    int m_current = 0; ///< that the arrow keys have come to
    int m_caret = -1;
};
