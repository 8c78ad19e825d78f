// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/labelsheet.h"
#include "shell/controls/taskpanel.h"

#include <QTimer>

#include <optional>

class ActivityBar;
class AddressViewer;
class SheetPane;
class TickList;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;
class QVBoxLayout;
struct Program;

/// Labels and envelopes for ticked names: the kind of sheet, where to start on a used one, how far a printer
/// is off, and the sheets as they will be printed.
class LabelPanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// `leaveCaption` is what the button says that leads back.
    LabelPanel(Program &program, ActivityBar &activity, const QString &leaveCaption,
               QWidget *parent = nullptr);
    ~LabelPanel() override;

    /// Takes the rows as they are shown now; `viewer` must live as long as the panel is used. With a row
    /// only that name is ticked, else all are.
    void start(const AddressViewer &viewer, std::optional<int> row = std::nullopt);
    /// The same when other rows are shown meanwhile, once the typing rests; the focus stays where it is.
    void follow(const AddressViewer &viewer);

    void leave() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeChoices();
    void addSheetChoice(QVBoxLayout &column);
    QLayout *makeOffset(QWidget *parent);
    void restoreChoices();
    /// False when the store refuses them.
    [[nodiscard]] bool storeChoices() const;
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
    QSpinBox *m_right = nullptr; ///< in millimetres, as the next one
    QSpinBox *m_down = nullptr;
    TickList *m_ticks = nullptr;
    QLabel *m_returnLabel = nullptr;
    QPlainTextEdit *m_returnAddress = nullptr;
    QLabel *m_count = nullptr;
    QLabel *m_leftOut = nullptr;
    SheetPane *m_pane = nullptr;
    QPushButton *m_print = nullptr;
};
