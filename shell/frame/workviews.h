// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QStackedWidget>

class TaskPanel;

/// The views of a work panel: a home, and views and panels over it until they are left (Esc, their own
/// button). The focus comes back to where it was. What was not opened yet is no part of the window: the style
/// of its parts would take most of the time in which a window opens.
class WorkViews final : public QStackedWidget
{
    Q_OBJECT
public:
    explicit WorkViews(QWidget *parent = nullptr);
    ~WorkViews() override;

    /// A view that others give way to. With several, the first is the one until `setHome` names another.
    void addHome(QWidget *home);
    /// A view that stands over the home until it is left.
    void addView(QWidget *view);
    /// A view that says itself when it is left, and may refuse.
    void addPanel(TaskPanel *panel);

    QWidget *home() const { return m_home; }
    /// The view that the others give way to from now on; it is shown where another home was.
    void setHome(QWidget *home);
    bool isHome() const { return isShown(m_home); }
    bool isShown(const QWidget *view) const { return (currentWidget() ? currentWidget() : m_home) == view; }

    /// Brings `view` to the front.
    void open(QWidget *view);
    /// Back to the home; a focus in the view that goes returns to where it was before.
    void goHome();
    /// What Esc does: leaves what stands over the home, if that lets itself be left. False where nothing
    /// does.
    bool leave();

    /// As high as the view in front must be: where the work scrolls, it is no longer than that.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

signals:
    void changed(QWidget *view);

private:
    void keepAside(QWidget *view);
    void bring(QWidget *view);

    QList<QPointer<QWidget>> m_aside; ///< not opened yet
    QWidget *m_home = nullptr;
    QList<QWidget *> m_homes;
    QPointer<QWidget> m_focusAtHome;
};
