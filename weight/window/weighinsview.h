// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/window/personview.h"

class DatePicker;
class FigureStrip;
class LineChartView;
class QBoxLayout;
class QLabel;
class QPushButton;
class WeighInEntry;
class WeighInModel;
class WeighInTable;
struct WeighIn;
struct WeightSheet;

/// The weigh-ins of the open person: how things stand, the line in which today's weight is entered, and the
/// table of all that were entered.
class WeighInsView final : public PersonView
{
    Q_OBJECT
public:
    explicit WeighInsView(const WeightDesk &desk);

    void finishEdit() override;

    QWidget &table() const;
    /// Puts the button of "Add Additional Row" beside the boxes of the line.
    void setAddButton(QPushButton *button);
    /// Adds what stands in the line, or a row that has its date alone, and saves. Tells it in a box.
    void addRow();
    /// Whether a row is chosen.
    bool isRowChosen() const;
    /// Asks, takes the chosen row away, and saves.
    void deleteRow();
    /// Puts the rows in the order of their days.
    void sortRows();
    /// Shows the rows by their weights, the other way round, or in the order of the file again.
    void turnByWeight();
    /// It is another day than before: the line has its date, unless something was typed there.
    void beginDay();
    /// Brings a row to sight, the last where it is -1.
    void showRow(int row = -1);

signals:
    /// Another row is chosen, or none.
    void rowChosen();

protected:
    void refresh() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeReached();
    QWidget *makeUncounted();
    QWidget *makeTable();
    void connectParts();
    void enter();
    void showToday();
    void showFigures();
    void placeChart();
    enum class Keep { Typed, Saved };
    bool append(const WeighIn &weighIn, Keep keep);
    bool store(const QString &title, const WeightSheet &wanted);
    void takeUncounted();
    void noticeAt(const Message &message, const QModelIndex &cell);

    DatePicker *m_picker;
    WeighInModel *m_model;
    WeighInEntry *m_entry;
    QLabel *m_today;
    QWidget *m_reached; ///< congratulates
    FigureStrip *m_figures;
    QLabel *m_uncountedWords;
    QWidget *m_uncounted;
    WeighInTable *m_table;
    QWidget *m_rows;
    QLabel *m_empty;
    LineChartView *m_chart; ///< beside the table, where there is room
    QBoxLayout *m_besides;
    QString m_shown; ///< the name of the person whose rows are shown
};
