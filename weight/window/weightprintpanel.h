// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/chartpicture.h"
#include "shell/controls/taskpanel.h"
#include "shell/pictures/papercopies.h"
#include "weight/model/weightgraph.h"
#include "weight/model/weightpages.h"

#include <array>
#include <functional>

class FunctionWindow;
class QCheckBox;
class QLabel;
struct Program;

/// The print options of the weight tracker, which are remembered, and the printout that they lead to.
class WeightPrintPanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// `sheet` gives the open person as they are shown, saved or not. The pages are shown in `window`.
    WeightPrintPanel(Program &program, FunctionWindow *window, std::function<WeightSheet()> sheet);

    /// How much of its history the graph on paper has; the last 50 weigh-ins unless told otherwise.
    void setExtent(std::function<WeightGraph::Extent()> extent) { m_extent = std::move(extent); }

    /// Offers what the person has.
    void start();
    /// Shows the pages with the options as they are.
    void print();

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    static constexpr std::size_t count = 7;

    QCheckBox *addChoice(QVBoxLayout *column, std::size_t choice);
    void remember();
    WeightPages::Options options() const;
    QString storeGraph(const LineChart &chart, QSizeF inches);

    Program &m_program;
    FunctionWindow *m_window;
    std::function<WeightSheet()> m_sheet;
    std::function<WeightGraph::Extent()> m_extent;
    std::array<QCheckBox *, count> m_choices{};
    std::array<QLabel *, count> m_reasons{}; ///< why a choice is not offered
    QPushButton *m_show = nullptr;
    ChartPicture m_graph;
    PaperCopies m_photos;
};
