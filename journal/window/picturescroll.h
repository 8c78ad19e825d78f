// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTextBlock>

#include <functional>

class QPlainTextEdit;
class QWheelEvent;

/// Scrolls a text with pictures in it. Its box goes by lines and takes one with a picture above it for as
/// high as any other: a picture would come and go as a whole, and leave the page empty behind it. So the part
/// of the box that is seen may begin above the page, by some of the picture at its top.
class PictureScroll final : public QObject
{
    Q_OBJECT
public:
    /// How much room a line has above it for a picture, in pixels.
    using RoomAbove = std::function<int(const QTextBlock &)>;

    PictureScroll(QPlainTextEdit &text, RoomAbove roomAbove);

    /// How much of the picture at the top is above the page.
    int hidden() const { return m_hidden; }

    /// Another text comes.
    void reset() { hide(0); }
    /// A picture has another height, or the box another size.
    void settle();
    void showCursor();

signals:
    void hiddenChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int pageHeight() const;
    QTextBlock topPicture() const;
    int mostHidden() const;
    int lastTop() const;
    void hide(int pixels);
    void setTop(int line);
    void follow(int line);
    void keepRange();
    void goDown(int pixels);
    void goUp(int pixels);
    bool turn(const QWheelEvent &event);

    QPlainTextEdit &m_text;
    RoomAbove m_roomAbove;
    int m_hidden = 0;
    bool m_isMoving = false;
};
