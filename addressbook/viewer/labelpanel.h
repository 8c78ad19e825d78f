#pragma once

#include "addressbook/model/labelsheet.h"
#include "shell/controls/taskpanel.h"

#include <QTimer>

#include <memory>

class ActivityBar;
class AddressViewer;
class PagePainter;
class SheetView;
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
    QWidget *makePreview();
    void addSheetChoice(QVBoxLayout &column);
    void restoreChoices();
    void storeChoices() const;
    const LabelSheet &sheet() const;
    LabelPages::Options options() const;
    void sheetChosen();
    void gather();
    void fit();
    void refresh();
    void showSheet(int index);
    void chooseStart(QPoint place);
    void print();

    Program &m_program;
    ActivityBar &m_activity;
    const AddressViewer *m_viewer = nullptr;
    LabelTexts m_labels;
    std::vector<SetLabel> m_set; ///< the same, fitted into the chosen sheet
    int m_shortened = 0;
    QTimer m_gathering;
    int m_index = 0;
    int m_sheetCount = 1;
    std::unique_ptr<PagePainter> m_painter;

    QComboBox *m_sheets = nullptr;
    QLabel *m_startLabel = nullptr;
    QSpinBox *m_start = nullptr;
    QCheckBox *m_share = nullptr;
    QLabel *m_returnLabel = nullptr;
    QPlainTextEdit *m_returnAddress = nullptr;
    QLabel *m_count = nullptr;
    QLabel *m_leftOut = nullptr;
    SheetView *m_view = nullptr;
    QPushButton *m_previous = nullptr;
    QPushButton *m_next = nullptr;
    QLabel *m_pageNumber = nullptr;
    QPushButton *m_print = nullptr;
};
