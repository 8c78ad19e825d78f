// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/viewerpages.h"
#include "shell/controls/taskpanel.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

/// How the viewer's list is printed.
class ListOptionsPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit ListOptionsPanel(QWidget *parent = nullptr);

    ViewerPages::ListOptions options() const;
    /// Tells what the list would hold now.
    void describe(const AddressViewer &viewer);

signals:
    void printRequested();

private:
    QLabel *m_content;
    QCheckBox *m_telephones;
    QCheckBox *m_asOf;
    QCheckBox *m_gridLines;
    QRadioButton *m_oneColumn;
    QRadioButton *m_twoColumns;
    QPushButton *m_print;
};
