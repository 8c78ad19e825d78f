// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QStackedWidget>

class TaskPanel;

/// The views of a work panel: a home, and views and panels over it until they are left (Esc, their own
/// button). The focus comes back to where it was.
class WorkViews final : public QStackedWidget
{
    Q_OBJECT
public:
    explicit WorkViews(QWidget *parent = nullptr);

    /// A view that others give way to. With several, the first is the one until `setHome` names another.
    void addHome(QWidget *home);
    /// A view that stands over the home until it is left.
    void addView(QWidget *view);
    /// A view that says itself when it is left, and may refuse.
    void addPanel(TaskPanel *panel);

    QWidget *home() const { return m_home; }
    /// The view that the others give way to from now on; it is shown where another home was.
    void setHome(QWidget *home);
    bool isHome() const { return currentWidget() == m_home; }
    bool isShown(const QWidget *view) const { return currentWidget() == view; }

    /// Brings `view` to the front.
    void open(QWidget *view);
    /// Back to the home; a focus in the view that goes returns to where it was before.
    void goHome();
    /// What Esc does: leaves what stands over the home, if that lets itself be left. False where nothing
    /// does.
    bool leave();

    /// As high as the view in front must be: where the work scrolls, it is no longer than that.
    QSize minimumSizeHint() const override;

signals:
    void changed(QWidget *view);

private:
    QWidget *m_home = nullptr;
    QList<QWidget *> m_homes;
    QPointer<QWidget> m_focusAtHome;
};
