// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/labelsheet.h"
#include "shell/controls/taskpanel.h"

#include <QTimer>

class ActivityBar;
class AddressViewer;
class SheetPane;
class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;
class QVBoxLayout;
struct Program;

/// Labels and envelopes for the names that the viewer shows: the kind of sheet, where to start on a used one,
/// and the sheets as they will be printed.
class LabelPanel final : public TaskPanel
{
    Q_OBJECT
public:
    LabelPanel(Program &program, ActivityBar &activity, QWidget *parent = nullptr);
    ~LabelPanel() override;

    /// Takes the rows as they are shown now; `viewer` must live as long as the panel is used.
    void start(const AddressViewer &viewer);
    /// The same when other rows are shown meanwhile, once the typing rests; the focus stays where it is.
    void follow(const AddressViewer &viewer);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeChoices();
    void addSheetChoice(QVBoxLayout &column);
    void restoreChoices();
    void storeChoices() const;
    const LabelSheet &sheet() const;
    LabelPages::Options options() const;
    void sheetChosen();
    void gather();
    void fit();
    void refresh();
    void chooseStart(QPoint place);
    void print();

    Program &m_program;
    ActivityBar &m_activity;
    const AddressViewer *m_viewer = nullptr;
    LabelTexts m_labels;
    std::vector<SetLabel> m_set; ///< the same, fitted into the chosen sheet
    int m_shortened = 0;
    QTimer m_gathering;

    QComboBox *m_sheets = nullptr;
    QLabel *m_startLabel = nullptr;
    QSpinBox *m_start = nullptr;
    QCheckBox *m_share = nullptr;
    QLabel *m_returnLabel = nullptr;
    QPlainTextEdit *m_returnAddress = nullptr;
    QLabel *m_count = nullptr;
    QLabel *m_leftOut = nullptr;
    SheetPane *m_pane = nullptr;
    QPushButton *m_print = nullptr;
};
