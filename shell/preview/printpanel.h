// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class ChoiceGrid;
class QLayout;

/// "Print": what comes onto paper, and below it how. Enter on a choice takes it.
class PrintPanel : public TaskPanel
{
    Q_OBJECT
signals:
    /// Its pages are to be shown.
    void accepted();

protected:
    /// Its parts are named after it: "toDoPrint" has toDoPrintPanel, toDoPrintShow and toDoPrintClose.
    PrintPanel(const QString &name, QWidget *parent);

    ChoiceGrid &what() const { return *m_what; }
    /// Call when the choices are complete; `how` stands below them under a heading of its own. Gives the
    /// button that shows the pages.
    QPushButton *compose(QLayout *how = nullptr);
    /// Call when all buttons are there.
    void addClose();

    /// Why there is nothing to be printed as it stands, with the focus where that can be mended.
    virtual QString refuse() { return {}; }
    /// What Enter does.
    virtual void accept();
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showPages();

    QString m_name;
    ChoiceGrid *m_what;
};
