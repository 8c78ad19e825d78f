// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/shared/labelpanel.h"

#include "addressbook/model/addressviewer.h"
#include "addressbook/model/viewerlines.h"
#include "addressbook/shared/ticklist.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/look/theme.h"
#include "shell/pages/pagepainter.h"
#include "shell/pages/pagetype.h"
#include "shell/preview/printjob.h"
#include "shell/preview/sheetpane.h"
#include "shell/program/program.h"
#include "shell/program/storedsettings.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSettings>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastChoicesWidth = 240;
constexpr int mostChoicesWidth = 340;
constexpr int mostOffset = 20; ///< in millimetres, either way
constexpr int envelopePoints = 11;
constexpr int labelPoints = 10;
constexpr int typingPause = 150; ///< in milliseconds

PageFont pageFont(const LabelSheet &sheet)
{
    PageFont font{QApplication::font(), Qt::black};
    font.font.setPointSize(sheet.isEnvelope ? envelopePoints : labelPoints);
    return font;
}

/// The fonts of the pages, measured for the room of a label.
LabelType labelType(const PageTypes &types, const LabelSheet &sheet)
{
    const QSizeF room = sheet.room(0).size() * PageMetrics::pointsPerInch;
    return {[&types, room](const QString &line, TextRole role) {
                return types.of(role).wrapped(line, room.width());
            },
            [&types, room](const QString &line, TextRole role) {
                return types.of(role).elided(line, room.width());
            },
            [&types, room](TextRole role) { return int(room.height() / types.of(role).lineHeight()); }};
}

QString storeKey(QLatin1StringView what)
{
    return u"Windows/ADDBKDISPLAY/"_s + what;
}

} // namespace

LabelPanel::LabelPanel(Program &program, ActivityBar &activity, const QString &leaveCaption, QWidget *parent)
    : TaskPanel(u"labels"_s, u"Labels and Envelopes"_s, parent)
    , m_program(program)
    , m_activity(activity)
{
    auto *work = new QWidget;
    auto *row = new QHBoxLayout(work);
    row->setContentsMargins({});
    row->setSpacing(16);
    row->addWidget(makeChoices(), 3);
    m_pane = new SheetPane(u"labelPreview"_s, {u"previousSheet"_s, u"sheetNumber"_s, u"nextSheet"_s}, work);
    m_pane->view()->setAccessibleName(u"Labels as they will be printed"_s);
    m_pane->view()->viewport()->installEventFilter(this);
    row->addWidget(m_pane, 2);
    setWork(work);
    setLeaveButton(u"leaveLabels"_s, leaveCaption);
    m_print = addButton(u"printLabels"_s, u"&Print"_s, ButtonKind::Main);

    connect(m_sheets, &QComboBox::currentIndexChanged, this, &LabelPanel::sheetChosen);
    connect(m_start, &QSpinBox::valueChanged, this, &LabelPanel::refresh);
    for (QSpinBox *offset : {m_right, m_down})
        connect(offset, &QSpinBox::valueChanged, this, &LabelPanel::refresh);
    connect(&m_ticks->names(), &TickedNames::ticksChanged, &m_gathering, qOverload<>(&QTimer::start));
    connect(m_share, &QCheckBox::toggled, this, &LabelPanel::gather);
    connect(m_returnAddress, &QPlainTextEdit::textChanged, this, &LabelPanel::refresh);
    connect(m_print, &QPushButton::clicked, this, &LabelPanel::print);
    m_gathering.setSingleShot(true);
    m_gathering.setInterval(typingPause);
    connect(&m_gathering, &QTimer::timeout, this, &LabelPanel::gather);
    restoreChoices();
}

LabelPanel::~LabelPanel()
{
    // The window's status bar may be gone already.
    if (m_viewer && !storeChoices())
        emit m_program.changes.settingNotSaved();
}

QWidget *LabelPanel::makeChoices()
{
    auto *choices = new QWidget;
    QScrollArea *scroll = makeScrolling(choices, u"labelChoices"_s, this);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(TypeScale::wide(leastChoicesWidth));
    scroll->setMaximumWidth(TypeScale::wide(mostChoicesWidth));
    auto *column = new QVBoxLayout(choices);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    addSheetChoice(*column);
    column->addSpacing(8);
    column->addLayout(makeOffset(choices));
    column->addSpacing(8);
    m_share = named(new QCheckBox(u"One label for each address"_s, choices), u"shareLabels"_s);
    m_share->setToolTip(u"Persons at one address share one label"_s);
    column->addWidget(m_share);
    column->addSpacing(8);
    m_returnAddress = named(new QPlainTextEdit(choices), u"returnAddress"_s);
    m_returnAddress->setTabChangesFocus(true);
    m_returnAddress->setFixedHeight(5 * fontMetrics().height());
    m_returnLabel = makeFieldLabel(u"Return address"_s, m_returnAddress, choices);
    column->addWidget(m_returnLabel);
    column->addWidget(m_returnAddress);
    column->addSpacing(8);
    m_count = named(new QLabel(choices), u"labelCount"_s);
    m_count->setFont(TypeScale::strong());
    m_leftOut = named(makeQuietLabel({}, choices), u"labelsLeftOut"_s);
    m_leftOut->setWordWrap(true);
    column->addWidget(m_count);
    column->addWidget(m_leftOut);
    column->addSpacing(8);
    m_ticks = new TickList(choices);
    column->addWidget(m_ticks, 1);
    return scroll;
}

void LabelPanel::addSheetChoice(QVBoxLayout &column)
{
    QWidget *parent = column.parentWidget();
    m_sheets = named(new QComboBox(parent), u"labelSheet"_s);
    for (const LabelSheet &sheet : LabelSheet::all())
        m_sheets->addItem(sheet.name);
    m_sheets->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_sheets->view()->setMinimumWidth(m_sheets->view()->sizeHintForColumn(0) + 32);
    m_start = named(new QSpinBox(parent), u"startPosition"_s);
    m_start->setMinimum(1);
    m_start->setMinimumSize(96, 34);
    m_start->setToolTip(u"A sheet that has been used before has fewer labels left. "
                        u"You can also click a label of the sheet."_s);
    m_startLabel = makeFieldLabel(u"Start at label"_s, m_start, parent);
    column.addWidget(makeFieldLabel(u"Sheet or envelope"_s, m_sheets, parent));
    column.addWidget(m_sheets);
    column.addSpacing(8);
    column.addWidget(m_startLabel);
    column.addWidget(m_start, 0, Qt::AlignLeft);
}

/// For a printer that draws in paper a little askew: all text moves, on screen too.
QLayout *LabelPanel::makeOffset(QWidget *parent)
{
    auto *offset = new QHBoxLayout;
    offset->setSpacing(8);
    const auto add = [&](const QString &name, const QString &label, const QString &words) {
        auto *box = named(new QSpinBox(parent), name);
        box->setRange(-mostOffset, mostOffset);
        box->setSuffix(u" mm"_s);
        box->setMinimumSize(96, 34);
        box->setToolTip(words);
        auto *place = new QVBoxLayout;
        place->setSpacing(4);
        place->addWidget(makeFieldLabel(label, box, parent));
        place->addWidget(box);
        offset->addLayout(place);
        return box;
    };
    m_right = add(u"labelRight"_s, u"Print further right"_s,
                  u"For a printer that prints too far left; less than 0 moves to the left"_s);
    m_down =
        add(u"labelDown"_s, u"Further down"_s, u"For a printer that prints too high; less than 0 moves up"_s);
    offset->addStretch(1);
    return offset;
}

void LabelPanel::restoreChoices()
{
    const QString chosen = m_program.store.value(storeKey("labelSheet"_L1)).toString();
    const int usual = m_program.state.dateStyle == DateStyle::Usa ? 2 : 0;
    const int index = m_sheets->findText(chosen);
    m_sheets->setCurrentIndex(index < 0 ? usual : index);
    m_share->setChecked(m_program.store.value(storeKey("shareLabels"_L1), true).toBool());
    m_returnAddress->setPlainText(m_program.store.value(storeKey("returnAddress"_L1)).toString());
    m_right->setValue(m_program.store.value(storeKey("labelRight"_L1), 0).toInt());
    m_down->setValue(m_program.store.value(storeKey("labelDown"_L1), 0).toInt());
    sheetChosen();
}

bool LabelPanel::storeChoices() const
{
    m_program.store.setValue(storeKey("labelRight"_L1), m_right->value());
    m_program.store.setValue(storeKey("labelDown"_L1), m_down->value());
    m_program.store.setValue(storeKey("labelSheet"_L1), m_sheets->currentText());
    m_program.store.setValue(storeKey("shareLabels"_L1), m_share->isChecked());
    m_program.store.setValue(storeKey("returnAddress"_L1), m_returnAddress->toPlainText());
    return StoredSettings::areOnDisk(m_program.store);
}

void LabelPanel::leave()
{
    const bool isStored = storeChoices();
    TaskPanel::leave();
    if (!isStored)
        m_activity.say(FrameLines::settingNotSaved());
}

const LabelSheet &LabelPanel::sheet() const
{
    return LabelSheet::all()[std::size_t(std::max(0, m_sheets->currentIndex()))];
}

LabelPages::Options LabelPanel::options() const
{
    const bool isEnvelope = sheet().isEnvelope;
    LabelPages::Options options;
    options.used = isEnvelope ? 0 : m_start->value() - 1;
    options.returnAddress = isEnvelope ? m_returnAddress->toPlainText().trimmed() : QString();
    options.offset = QPointF(m_right->value(), m_down->value()) / PageMetrics::millimetersPerInch;
    return options;
}

void LabelPanel::start(const AddressViewer &viewer, std::optional<int> row)
{
    m_viewer = &viewer;
    m_pane->startOver();
    m_ticks->names().list(viewer);
    if (row)
        m_ticks->names().tickOnly(viewer.line(*row));
    else
        m_ticks->names().tickAll(true);
    m_ticks->showTicked();
    gather();
    m_sheets->setFocus();
}

void LabelPanel::follow(const AddressViewer &viewer)
{
    m_viewer = &viewer;
    m_pane->startOver();
    m_ticks->names().list(viewer);
}

void LabelPanel::sheetChosen()
{
    const bool isEnvelope = sheet().isEnvelope;
    m_start->setMaximum(sheet().count());
    for (QWidget *control : std::initializer_list<QWidget *>{m_startLabel, m_start})
        control->setVisible(!isEnvelope);
    for (QWidget *control : std::initializer_list<QWidget *>{m_returnLabel, m_returnAddress})
        control->setVisible(isEnvelope);
    m_pane->startOver();
    m_sheets->setToolTip(sheet().name);
    fit();
}

void LabelPanel::gather()
{
    if (!m_viewer)
        return;
    m_gathering.stop();
    const BusyCursor busy;
    m_labels = LabelTexts::of(
        *m_viewer, m_share->isChecked() ? LabelSharing::OneForAnAddress : LabelSharing::EachTheirOwn,
        [&names = m_ticks->names()](int line) { return names.isTicked(line); });
    fit();
}

void LabelPanel::fit()
{
    const PageTypes types(pageFont(sheet()));
    const LabelType type = labelType(types, sheet());
    m_set.clear();
    m_set.reserve(m_labels.texts.size());
    for (const QString &text : m_labels.texts)
        m_set.push_back(LabelPages::fitted(text, type));
    m_shortened = int(std::ranges::count(m_set, true, &SetLabel::isShortened));
    refresh();
}

void LabelPanel::refresh()
{
    const int labels = int(m_labels.texts.size());
    const int sheets = LabelPages::sheetCount(sheet(), labels, options().used);
    m_count->setText(ViewerLines::labelCount(labels, sheets, sheet().isEnvelope));
    QStringList remarks;
    if (m_labels.leftOut > 0)
        remarks << ViewerLines::leftOut(m_labels.leftOut);
    if (m_shortened > 0)
        remarks << ViewerLines::shortened(m_shortened);
    m_leftOut->setText(remarks.join(u'\n'));
    const bool isNoneTicked = m_ticks->names().tickedCount() == 0;
    setUnavailable(m_print, labels > 0     ? QString()
                            : isNoneTicked ? ViewerLines::nothingTicked()
                                           : ViewerLines::noLabels());
    m_pane->setSheets(sheets, [this](int index) {
        LabelPages::Options shown = options();
        shown.hasRims = !sheet().isEnvelope;
        return PagePainter(LabelPages::sheet(sheet(), m_set, shown, index), sheet().setup(),
                           pageFont(sheet()));
    });
}

bool LabelPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_pane->view()->viewport() && event->type() == QEvent::MouseButtonPress)
        chooseStart(static_cast<QMouseEvent *>(event)->pos());
    return TaskPanel::eventFilter(watched, event);
}

/// The label under `place` of the first sheet is where printing starts.
void LabelPanel::chooseStart(QPoint place)
{
    const QRectF shown = m_pane->view()->sheetRect();
    if (sheet().isEnvelope || m_pane->sheet() != 0 || !shown.isValid())
        return;
    const double inch = shown.width() / sheet().paper.width();
    const QPointF inches = (QPointF(place) - shown.topLeft()) / inch;
    for (int position = 0; position < sheet().count(); ++position) {
        if (sheet().place(position).contains(inches))
            m_start->setValue(position + 1);
    }
}

void LabelPanel::print()
{
    const bool isStored = storeChoices();
    if (m_gathering.isActive())
        gather();
    const auto laidOut = [this](const PageSetup &setup) {
        const BusyCursor busy;
        return PagePainter(LabelPages::sheets(sheet(), m_set, options()), setup, pageFont(sheet()));
    };
    PrintJob job(m_program, m_activity, window(), sheet().isEnvelope ? u"Envelopes"_s : u"Labels"_s);
    job.run(laidOut(sheet().setup()), sheet().setup(), m_pane->sheet(), laidOut);
    if (!isStored)
        m_activity.say(FrameLines::settingNotSaved());
}
