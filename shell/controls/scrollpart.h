// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

class LowWindow;

/// A part of a window that scrolls by itself; where the work around it scrolls as a whole, it is as high
/// as its content instead.
class ScrollPart final : public QScrollArea
{
    Q_OBJECT
public:
    explicit ScrollPart(QWidget *content, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int contentHeight() const;
    bool isWhole() const;

    LowWindow *m_low;
};
