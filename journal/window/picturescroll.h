// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTextBlock>

#include <functional>

class QPlainTextEdit;
class QWheelEvent;

/// Scrolls a text with pictures in it. Its box goes by lines and takes one with a picture above it for as
/// high as any other: it would not come to the end, nor show the cursor, and a turn of the wheel would pass
/// over pictures.
class PictureScroll final : public QObject
{
    Q_OBJECT
public:
    /// `hasPicture`: whether a line has a picture above it.
    PictureScroll(QPlainTextEdit &text, std::function<bool(const QTextBlock &)> hasPicture);

    /// A picture has another height, or the box another size.
    void reachEnd();
    void showCursor();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool turn(const QWheelEvent &event);

    QPlainTextEdit &m_text;
    std::function<bool(const QTextBlock &)> m_hasPicture;
    int m_turned = 0; ///< of the wheel, since the last line
};
