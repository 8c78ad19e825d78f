// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/fuelcalculatorpanel.h"

#include "cars/model/carnumbers.h"
#include "cars/model/fuelcalculator.h"
#include "cars/model/fuellines.h"
#include "cars/model/messages.h"
#include "cars/window/opencar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/pastefilter.h"
#include "shell/frame/functionwindow.h"
#include "shell/look/theme.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int boxWidthInPixels = 150;
constexpr int leastBoxWidth = 96;
} // namespace

FuelCalculatorPanel::FuelCalculatorPanel(const CarDesk &desk)
    : TaskPanel(u"fuelCalculatorPanel"_s, u"Fuel Calculators"_s)
    , m_desk(desk)
{
    setContent(makeContent());
    QPushButton *enter =
        addButton(u"calculatorEnter"_s, u"Enter as &Fill-up"_s, ButtonKind::Plain, Side::Left);
    QPushButton *calculate = addButton(u"calculatorCalculate"_s, u"Calcula&te"_s, ButtonKind::Main);
    setLeaveButton(u"calculatorClose"_s, u"C&lose"_s);
    connect(enter, &QPushButton::clicked, this, &FuelCalculatorPanel::enterFillUp);
    connect(calculate, &QPushButton::clicked, this, &FuelCalculatorPanel::calculate);
    setFocusProxy(m_boxes[Current]);
}

QWidget *FuelCalculatorPanel::makeContent()
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    const auto addPart = [&](const QString &heading, Box first, Box last, const QString &name) {
        auto *grid = new QGridLayout;
        grid->setHorizontalSpacing(16);
        grid->setVerticalSpacing(3);
        rows->addWidget(makeHeading(heading, content));
        rows->addLayout(grid);
        addBoxes(grid, first, last);
        auto *result = named(new ElidedLabel(content), name);
        result->setFixedHeight(QFontMetrics(TypeScale::cardTitle()).height()); // of the hint too
        rows->addWidget(result);
        return result;
    };
    m_drive = addPart(u"What it used between two readings"_s, Previous, Cost, u"calculatorDrive"_s);
    rows->addSpacing(12);
    rows->addWidget(makeLine(content));
    rows->addSpacing(4);
    m_trip = addPart(u"What a trip takes"_s, Distance, Price, u"calculatorTrip"_s);
    rows->addStretch(1);
    return content;
}

void FuelCalculatorPanel::addBoxes(QGridLayout *grid, Box first, Box last)
{
    static const std::array<QString, boxCount> names{u"Previous"_s, u"Current"_s, u"Used"_s, u"Cost"_s,
                                                     u"Distance"_s, u"Economy"_s, u"Price"_s};
    for (std::size_t i = first; i <= last; ++i) {
        auto *box = named(new QLineEdit(this), u"calculator"_s + names[i]);
        box->setAlignment(Qt::AlignRight);
        box->setMinimumWidth(leastBoxWidth);
        box->setMaximumWidth(boxWidthInPixels);
        new PasteFilter(box, Characters::All);
        m_boxes[i] = box;
        m_captions[i] = makeQuietLabel({}, this);
        m_captions[i]->setBuddy(box);
        const int column = int(i - first);
        grid->addWidget(m_captions[i], 0, column);
        grid->addWidget(box, 1, column);
        if (first == Distance)
            connect(box, &QLineEdit::textChanged, this, &FuelCalculatorPanel::showTrip);
        else
            connect(box, &QLineEdit::textChanged, this, [this] { showDrive({}); });
        connect(box, &QLineEdit::returnPressed, this, &FuelCalculatorPanel::calculate);
    }
    grid->setColumnStretch(int(last - first) + 1, 1);
}

void FuelCalculatorPanel::begin(const FuelFigures &figures, const QString &lastReading)
{
    const DistanceUnit unit = m_desk.car.unit();
    const std::array<QString, boxCount> captions{u"Previous Reading"_s,
                                                 u"Current Reading"_s,
                                                 CarWords::fuelAmount(unit) + u" Used"_s,
                                                 u"Cost"_s,
                                                 CarWords::miles(unit),
                                                 CarWords::fuelHeadings(unit)[5],
                                                 FuelLines::perFuel(unit)};
    for (std::size_t i = 0; i < boxCount; ++i) {
        m_captions[i]->setText(captions[i]);
        m_boxes[i]->setAccessibleName(captions[i]);
        m_boxes[i]->clear();
    }
    const FuelSums sums = figures.sums();
    m_boxes[Previous]->setText(lastReading);
    if (sums.economy)
        m_boxes[Economy]->setText(CarNumbers::text(*sums.economy, 1));
    if (sums.centsPerAmount)
        m_boxes[Price]->setText(CarNumbers::text(*sums.centsPerAmount / 100, 2));
    showDrive({});
    showTrip();
}

QString FuelCalculatorPanel::text(Box box) const
{
    return m_boxes[box]->text();
}

bool FuelCalculatorPanel::calculate()
{
    const bool isTrip = !text(Distance).trimmed().isEmpty() && text(Current).trimmed().isEmpty() &&
                        text(Used).trimmed().isEmpty();
    if (isTrip)
        return false; // it is shown as it is typed
    if (!FuelCalculator::isComplete(text(Previous), text(Current), text(Used))) {
        m_desk.program.dialogs.ask(&m_desk.window, CarMessages::calculatorIncomplete(m_desk.car.unit()));
        for (const Box box : {Previous, Current, Used}) {
            if (!CarNumbers::number(text(box))) {
                m_boxes[box]->setFocus();
                break;
            }
        }
        return false;
    }
    const auto drive = FuelCalculator::drive(text(Previous), text(Current), text(Used), text(Cost));
    showDrive(drive ? FuelLines::drive(*drive, m_desk.car.unit()) : FuelLines::nothingDriven());
    return drive.has_value();
}

/// Until there is an answer, its place says what it will be.
void FuelCalculatorPanel::showAnswer(QLabel *place, const QString &answer, const QString &hint)
{
    place->setFont(answer.isEmpty() ? TypeScale::body() : TypeScale::cardTitle());
    place->setForegroundRole(answer.isEmpty() ? ThemeRole::quiet : QPalette::WindowText);
    place->setText(answer.isEmpty() ? hint : answer);
}

void FuelCalculatorPanel::showDrive(const QString &answer)
{
    showAnswer(m_drive, answer, FuelLines::whatADriveGives(m_desk.car.unit()));
}

void FuelCalculatorPanel::showTrip()
{
    const auto trip = FuelCalculator::trip(text(Distance), text(Economy), text(Price));
    showAnswer(m_trip, trip ? FuelLines::trip(*trip, m_desk.car.unit()) : QString(),
               FuelLines::whatATripGives(m_desk.car.unit()));
}

void FuelCalculatorPanel::enterFillUp()
{
    if (!calculate())
        return;
    emit fillUpWanted({{}, text(Previous), text(Current), {}, text(Used), {}, text(Cost)});
}
