// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weightprintpanel.h"

#include "shell/charts/paperchart.h"
#include "shell/frame/functionwindow.h"
#include "shell/pictures/picturefolder.h"
#include "shell/pictures/picturelines.h"
#include "shell/program/program.h"
#include "weight/model/weightchart.h"
#include "weight/model/weightpaperlines.h"

#include <QCheckBox>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using WeightPages::Options;

constexpr QSize photoOnPaper(2250, 2310); ///< a whole sheet at 300 points to the inch
constexpr QLatin1StringView keys("Windows/WeightTracker/print/");

/// A choice of the panel; its caption is fixed.
struct Choice {
    bool Options::*option;
    QStringView caption;
    QLatin1StringView name;
};

constexpr std::array<Choice, 7> choices{
    {{&Options::graph, u"Print Graph", "printGraph"_L1},
     {&Options::data, u"Weight Tracker Data", "printData"_L1},
     {&Options::plan, u"Plan Information", "printPlan"_L1},
     {&Options::beginningPicture, u"Picture(Beginning)", "printBeginning"_L1},
     {&Options::currentPicture, u"Picture(Current)", "printCurrent"_L1},
     {&Options::borderLines, u"Print Border Lines", "printBorder"_L1},
     {&Options::dividerLines, u"Divider Lines", "printDividers"_L1}}};
constexpr std::size_t firstOfLines = 5;

/// As on the screen; its caption stands on the page already.
LineChart graphOf(const WeightSheet &sheet, WeightGraph::Extent extent, const PageContext &context)
{
    LineChart chart = WeightChart::of(sheet, extent, context.today, context.style);
    chart.caption.clear();
    return chart;
}

} // namespace

WeightPrintPanel::WeightPrintPanel(Program &program, FunctionWindow *window,
                                   std::function<WeightSheet()> sheet)
    : TaskPanel(u"weightPrintPanel"_s, u"Print Options"_s)
    , m_program(program)
    , m_window(window)
    , m_sheet(std::move(sheet))
    , m_graph(program.folder)
    , m_photos(program.folder)
{
    static_assert(choices.size() == count);
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(makeHeading(u"What is printed"_s, content));
    QLabel *hint = makeQuietLabel(u"The first page tells what the weigh-ins come to, with the graph; each of "
                                  "the others begins on a new page."_s,
                                  content);
    hint->setWordWrap(true);
    column->addWidget(hint);
    for (std::size_t i = 0; i < count; ++i) {
        if (i == firstOfLines) {
            column->addSpacing(8);
            column->addWidget(makeHeading(u"Lines"_s, content));
        }
        m_choices[i] = addChoice(column, i);
    }
    column->addStretch(1);
    setContent(content);
    m_show = addButton(u"weightPrintShow"_s, u"Show &Pages"_s, ButtonKind::Main);
    setLeaveButton(u"weightPrintClose"_s, u"C&lose"_s);
    connect(m_show, &QPushButton::clicked, this, &WeightPrintPanel::print);
}

QCheckBox *WeightPrintPanel::addChoice(QVBoxLayout *column, std::size_t choice)
{
    const Choice &of = choices[choice];
    auto *box = named(new QCheckBox(of.caption.toString(), this), of.name);
    box->setChecked(m_program.store.value(keys + of.name, Options().*of.option).toBool());
    m_reasons[choice] = named(makeQuietLabel({}, this), of.name + u"Why"_s);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(box);
    row->addWidget(m_reasons[choice], 1);
    column->addLayout(row);
    connect(box, &QCheckBox::toggled, this, &WeightPrintPanel::remember);
    return box;
}

void WeightPrintPanel::remember()
{
    for (std::size_t i = 0; i < count; ++i)
        m_program.store.setValue(keys + choices[i].name, m_choices[i]->isChecked());
}

void WeightPrintPanel::start()
{
    const WeightSheet sheet = m_sheet();
    const auto offer = [this](bool Options::*option, bool isThere, const QString &reason) {
        for (std::size_t i = 0; i < count; ++i) {
            if (choices[i].option != option)
                continue;
            setUnavailable(m_choices[i], isThere ? QString() : reason);
            m_reasons[i]->setText(isThere ? QString() : reason);
        }
    };
    offer(&Options::graph, !WeightGraph::of(sheet).points.isEmpty(), WeightPaperLines::noWeighIns());
    offer(&Options::data, !sheet.weighIns.isEmpty(), WeightPaperLines::noWeighIns());
    const PictureFolder pictures(m_program.folder);
    const auto offerPhoto = [&](bool Options::*option, const QString &stored) {
        const bool isChosen = !stored.trimmed().isEmpty();
        offer(option, isChosen && !pictures.locate(stored.trimmed()).isEmpty(),
              isChosen ? PictureLines::pictureNotFound() : WeightPaperLines::noPhoto());
    };
    offerPhoto(&Options::beginningPicture, sheet.beginningPicture);
    offerPhoto(&Options::currentPicture, sheet.currentPicture);
    setFocusProxy(*std::ranges::find_if(m_choices, &QCheckBox::isEnabled)); // the lines always are
}

/// What cannot be printed is left out, whatever was chosen for others.
Options WeightPrintPanel::options() const
{
    Options options;
    for (std::size_t i = 0; i < count; ++i)
        options.*choices[i].option = m_choices[i]->isChecked() && m_choices[i]->isEnabled();
    return options;
}

void WeightPrintPanel::print()
{
    start();
    const WeightSheet sheet = m_sheet();
    const Options options = this->options();
    const auto extent = m_extent ? m_extent() : WeightGraph::Extent::Last50;
    WeightPages::Pictures pictures;
    if (options.beginningPicture)
        pictures.beginning = m_photos.photo(u"beginning"_s, sheet.beginningPicture, photoOnPaper);
    if (options.currentPicture)
        pictures.current = m_photos.photo(u"current"_s, sheet.currentPicture, photoOnPaper);
    const auto page = [this, sheet, options, pictures, extent](const PageContext &context) {
        WeightPages::Pictures all = pictures;
        if (options.graph)
            all.graph = storeGraph(graphOf(sheet, extent, context), WeightPages::graphSize(context.setup));
        return WeightPages::printout(sheet, options, all, context);
    };
    m_window->showPreview(page, sheet.field(WeightSheet::Name).trimmed() + u" Weight Tracker Printout"_s);
}

/// The path of its picture, wherever that could be kept.
QString WeightPrintPanel::storeGraph(const LineChart &chart, QSizeF inches)
{
    QString path = m_graph.store(PaperChart::draw(chart, inches));
    const DataFolder &folder = m_program.folder;
    if (!folder.isReadOnly() && path != folder.filePath(ChartPicture::fileName))
        emit said(WeightPaperLines::chartNotSaved());
    return path;
}
