// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carview.h"
#include "cars/window/logpane.h"

/// A view of a history of the open car or of its fuel tracker: what it comes to, and its rows.
class LogView : public CarView
{
    Q_OBJECT
public:
    LogPane &pane() const { return *m_pane; }
    CarPart part() const { return m_part; }

    void finishEdit() override;

signals:
    /// Something was added or deleted, as `line` says, and can be taken back.
    void done(const QString &line);

protected:
    /// The view takes `pane`; `addCaption` is on the button that adds what was typed.
    LogView(const QString &name, const CarDesk &desk, CarPart part, LogPane *pane, const QString &addCaption);

    /// Puts `above` over the rows.
    void addParts(const QList<QWidget *> &above);
    void refresh() override;
    /// What the rows come to, once they are shown.
    virtual void showFigures() = 0;

private:
    CarPart m_part;
    LogPane *m_pane;
};
