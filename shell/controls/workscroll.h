// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

class LowWindow;
class QTimer;

/// The work of a window. In a low window it scrolls as a whole where it cannot be as low, and follows the
/// focus; anywhere else it has the height that there is. It takes the work when it is given its
/// style, as `ScrollPart` does.
class WorkScroll final : public QScrollArea
{
    Q_OBJECT
public:
    explicit WorkScroll(QWidget *work, QWidget *parent = nullptr);
    ~WorkScroll() override;

    /// The one that `part` stands in; null where there is none.
    static WorkScroll *around(const QWidget *part);

    /// Other work is shown from its top on, as far as its focus allows, until the user goes on in it.
    void startAtTop();

    QSize sizeHint() const override;
    /// As wide as the work must be: it never scrolls sideways.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();
    void follow();
    void settle();

    QWidget *m_content;
    LowWindow *m_low;
    QTimer *m_settled; ///< the layout is done
    bool m_startsAtTop = false;
    bool m_hasSettled = false;
};
