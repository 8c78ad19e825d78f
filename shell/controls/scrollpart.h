// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

class LowWindow;

/// A part of a window that scrolls by itself; where the work around it scrolls as a whole, it is as high
/// as its content instead. It takes its content when it is given its style: by then it stands in its window,
/// and its content is given its style once rather than again with each move.
class ScrollPart final : public QScrollArea
{
    Q_OBJECT
public:
    explicit ScrollPart(QWidget *content, QWidget *parent = nullptr);

    /// In a low window too, so that what stands above and below it stays in sight.
    void scrollByItself();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int contentHeight() const;
    bool isWhole() const;

    QWidget *m_content;
    LowWindow *m_low;
    bool m_isByItself = false;
};
