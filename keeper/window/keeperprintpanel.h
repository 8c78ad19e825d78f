// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperpages.h"
#include "keeper/model/keepersettings.h"
#include "shell/controls/taskpanel.h"
#include "shell/core/programstate.h"

class QButtonGroup;

/// "Print": which entries come onto paper, and how. Whether with their secrets is asked beside the pages.
class KeeperPrintPanel final : public TaskPanel
{
    Q_OBJECT
public:
    enum Which { Chosen, Listed, All };

    explicit KeeperPrintPanel(QWidget *parent = nullptr);

    /// How many there are of each; what is chosen is proposed.
    void start(int chosen, int listed, int all);
    /// What was printed before, for shredding.
    void showPrinted(const QList<PrintedSheet> &sheets, DateStyle style);
    Which which() const;
    KeeperPages::Options::Layout layoutOfPages() const;

signals:
    void accepted();

private:
    QButtonGroup *m_which;
    QButtonGroup *m_layout;
    QLabel *m_printed;
    QPushButton *m_show;
};
