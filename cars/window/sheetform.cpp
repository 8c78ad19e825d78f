// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/sheetform.h"

#include "cars/model/carmakes.h"
#include "cars/model/carwords.h"
#include "cars/window/signline.h"
#include "shell/controls/controls.h"
#include "shell/core/shellmessages.h"
#include "shell/look/theme.h"
#include "shell/pictures/pictureframe.h"

#include <QComboBox>
#include <QEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowGap = 8; // all rows stand in the window as it opens
constexpr int boxGap = 14;
constexpr int columnGap = 28;
constexpr int greatestWidth = 640;
constexpr int oneColumnWidth = 300;
constexpr int pictureHeight = 150;
/// From this width on the second group stands beside the first, and prices and numbers have room.
constexpr int twoColumnsFrom = 680;
/// From this width on the word "required" has room beside the labels.
constexpr int requiredBesideFrom = 840;

using Field = VehicleSheet::Field;

QString textOf(const CarRecord &car, std::size_t place)
{
    return place == SheetForm::nameBox ? car.vehicle.name : car.sheet.fields[place - 1];
}

QHBoxLayout *row()
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(boxGap);
    return layout;
}

QVBoxLayout *rowsOf(QWidget *column)
{
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(rowGap);
    return layout;
}

QStringList months()
{
    QStringList names;
    for (int month = 1; month <= 12; ++month)
        names.append(QLocale::c().monthName(month));
    return names;
}

} // namespace

SheetForm::SheetForm(QWidget *parent)
    : QWidget(parent)
{
    makeBoxes();
    auto *rows = rowsOf(this);
    m_columns = new QBoxLayout(QBoxLayout::LeftToRight);
    m_columns->setSpacing(columnGap);
    m_columns->addWidget(makeGeneralColumn(), 5);
    m_columns->addWidget(makeSideColumn(), 3);
    rows->addLayout(m_columns);
    rows->addWidget(makeMaintenanceRows());
    rows->addStretch(1);
    setMaximumWidth(2 * greatestWidth + columnGap);
    setTabOrders();
}

void SheetForm::makeBoxes()
{
    for (std::size_t i = 0; i < count; ++i) {
        m_boxes[i] = named(new FieldBox(this), u"Text1_"_s + QString::number(i));
        m_boxes[i]->setMinimumWidth(40);
        m_boxes[i]->installEventFilter(this);
        connect(m_boxes[i], &QLineEdit::textEdited, this, &SheetForm::edited);
        connect(m_boxes[i], &FieldBox::refused, this, &SheetForm::said);
        connect(m_boxes[i], &QLineEdit::editingFinished, this, [this, i] { emit entered(i); });
    }
    m_boxes[boxOf(Field::Odometer)]->selectOnFirstClick();
    m_make = makeChoice(u"carMake"_s, boxOf(Field::Make));
    m_make->addItems(CarMakes::makes());
    m_model = makeChoice(u"Combo7"_s, boxOf(Field::Model));
    makeChoice(u"registrationMonth"_s, boxOf(Field::RegistrationMonth))->addItems(months());
    connect(m_make, &QComboBox::editTextChanged, this, &SheetForm::offerModels);
}

/// A box with a list of what is usual in it; anything else may be typed as well.
QComboBox *SheetForm::makeChoice(const QString &name, std::size_t place)
{
    auto *choice = named(new QComboBox(this), name);
    FieldBox *box = m_boxes[place];
    setTabOrder(choice, box); // the two go together wherever the order of the form puts them
    choice->setEditable(true);
    choice->setInsertPolicy(QComboBox::NoInsert);
    choice->setLineEdit(box);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setMinimumContentsLength(6);
    choice->setMaxVisibleItems(12);
    choice->setFocusPolicy(Qt::StrongFocus);
    choice->installEventFilter(this);
    connect(choice, &QComboBox::activated, this, [this, place] { emit entered(place); });
    m_choices.push_back(choice);
    return choice;
}

/// The models of the make, in a list whose box keeps its text.
void SheetForm::offerModels()
{
    const QSignalBlocker quiet(m_model);
    const QString typed = m_model->currentText();
    m_model->clear();
    m_model->addItems(CarMakes::models(m_make->currentText().trimmed()));
    m_model->setEditText(typed);
}

/// The box, or the list that it stands in.
QWidget *SheetForm::controlOf(std::size_t place) const
{
    QLineEdit *box = m_boxes[place];
    const auto choice = std::ranges::find(m_choices, box, &QComboBox::lineEdit);
    return choice == m_choices.end() ? static_cast<QWidget *>(box) : *choice;
}

QVBoxLayout *SheetForm::labelledBox(std::size_t place, bool isRequired)
{
    FieldBox *box = m_boxes[place];
    QWidget *control = controlOf(place);
    const QString caption = place == nameBox ? u"Name:"_s : CarWords::captions[place - 1].toString();
    QLabel *label = place == nameBox ? makeQuietLabel(caption, this) : makeFieldLabel(caption, control, this);
    box->setAccessibleName(caption.chopped(1));
    auto *layout = labelled(label, control);
    if (place == boxOf(Field::Odometer))
        m_odometerLabel = label;
    if (place == nameBox)
        m_nameLabel = label;
    if (!isRequired)
        return layout;
    const QString hint = place == boxOf(Field::Make) ? u"or the model"_s : QString(); // either is enough
    QLabel *required =
        makeFieldLabel(place == nameBox ? u"Enter File Name:"_s : caption, control, this, hint, true);
    // Rich text is a little higher, and would push the box out of its row.
    required->setFixedHeight(label->sizeHint().height());
    required->hide();
    layout->insertWidget(1, required);
    m_required.insert(m_required.end(), {label, required});
    return layout;
}

void SheetForm::addRow(QVBoxLayout *column, std::initializer_list<Field> fields)
{
    QHBoxLayout *boxes = row();
    for (const Field field : fields)
        boxes->addLayout(labelledBox(boxOf(field)), 1);
    column->addLayout(boxes);
}

QWidget *SheetForm::makeGeneralColumn()
{
    auto *column = new QWidget(this);
    column->setMaximumWidth(greatestWidth);
    QVBoxLayout *layout = rowsOf(column);
    QHBoxLayout *names = row();
    names->addLayout(labelledBox(nameBox, true), 3);
    names->addLayout(labelledBox(boxOf(Field::Odometer), true), 2);
    layout->addLayout(names);
    QHBoxLayout *makes = row();
    makes->addLayout(labelledBox(boxOf(Field::Make), true), 1);
    makes->addLayout(labelledBox(boxOf(Field::Model)), 1);
    layout->addLayout(makes);
    QHBoxLayout *heading = row();
    heading->addWidget(makeHeading(CarWords::generalInformation.toString(), this), 1);
    m_registrationDue = named(new SignLine(this), u"registrationDue"_s);
    m_registrationDue->hide();
    heading->addWidget(m_registrationDue); // here it takes no height from the boxes
    layout->addLayout(heading);
    QHBoxLayout *numbers = row();
    numbers->addLayout(labelledBox(boxOf(Field::Vin)), 3); // of 17 characters
    numbers->addLayout(labelledBox(boxOf(Field::License)), 2);
    layout->addLayout(numbers);
    addRow(layout, {Field::RegistrationMonth, Field::PurchaseDate, Field::Price});
    addRow(layout, {Field::From});
    layout->addStretch(1);
    return column;
}

QWidget *SheetForm::makeSideColumn()
{
    auto *column = new QWidget(this);
    column->setMaximumWidth(greatestWidth);
    QVBoxLayout *layout = rowsOf(column);
    m_picture = named(new PictureFrame(this), u"Image1"_s);
    m_picture->setWords(u"No Picture Currently Loaded"_s);
    m_picture->setAccessibleName(u"Picture"_s);
    m_picture->setFixedHeight(pictureHeight);
    QHBoxLayout *picture = row();
    picture->addWidget(m_picture, 1);
    m_pictureColumn = new QVBoxLayout;
    m_pictureColumn->setSpacing(rowGap);
    m_pictureColumn->addLayout(labelledBox(boxOf(Field::Picture)));
    m_pictureColumn->addStretch(1);
    picture->addLayout(m_pictureColumn, 1);
    layout->addLayout(picture);
    layout->addWidget(makeHeading(CarWords::insuranceInformation.toString(), this));
    addRow(layout, {Field::Insurer, Field::InsurerTelephone});
    QHBoxLayout *policy = row();
    QVBoxLayout *number = labelledBox(boxOf(Field::Policy));
    number->addStretch(1); // beside a box that has a line below it
    policy->addLayout(number, 1);
    QVBoxLayout *expiration = labelledBox(boxOf(Field::InsuranceExpiration));
    m_insuranceFact = named(new SignLine(this), u"insuranceFact"_s);
    expiration->addWidget(m_insuranceFact);
    policy->addLayout(expiration, 1);
    layout->addLayout(policy);
    layout->addStretch(1);
    return column;
}

/// Four boxes a row, or two where there is less room.
QWidget *SheetForm::makeMaintenanceRows()
{
    auto *part = new QWidget(this);
    QVBoxLayout *layout = rowsOf(part);
    layout->addWidget(makeHeading(CarWords::maintenanceInformation.toString(), this));
    constexpr std::array fields{Field::OilFilter, Field::AirFilter, Field::PvcValve,      Field::PlugType,
                                Field::OilWeight, Field::OilChange, Field::CoolantChange, Field::Other};
    for (std::size_t i = 0; i < fields.size(); i += 4) {
        auto *four = new QBoxLayout(QBoxLayout::LeftToRight);
        four->setSpacing(boxGap);
        for (std::size_t pair = i; pair < i + 4; pair += 2) {
            QHBoxLayout *two = row();
            // What else there is takes a sentence, beside three short figures.
            const bool isWide = fields[pair + 1] == Field::Other;
            two->addLayout(labelledBox(boxOf(fields[pair])), 1);
            two->addLayout(labelledBox(boxOf(fields[pair + 1])), isWide ? 2 : 1);
            four->addLayout(two, isWide ? 3 : 2);
        }
        layout->addLayout(four);
        m_maintenanceRows.push_back(four);
    }
    return part;
}

void SheetForm::setPictureButton(QPushButton *button)
{
    button->setParent(this);
    m_pictureColumn->insertWidget(1, button, 0, Qt::AlignLeft);
    setTabOrder(m_boxes[boxOf(Field::Picture)], button);
}

void SheetForm::show(const CarRecord &car)
{
    for (std::size_t i = 0; i < count; ++i) {
        const QString text = textOf(car, i);
        if (m_boxes[i]->text() == text && m_shown[i] == text)
            continue;
        m_boxes[i]->setText(text);
        m_boxes[i]->setCursorPosition(0);
        m_shown[i] = m_boxes[i]->text();
    }
    m_odometerLabel->setToolTip(CarWords::miles(car.sheet.unit));
}

CarRecord SheetForm::typed(CarRecord car) const
{
    for (std::size_t i = 0; i < count; ++i) {
        if (m_boxes[i]->text() == m_shown[i])
            continue;
        if (i == nameBox)
            car.vehicle.name = m_boxes[i]->text().trimmed();
        else
            car.sheet.fields[i - 1] = m_boxes[i]->text();
    }
    return car;
}

void SheetForm::setLocked(bool locked)
{
    for (FieldBox *box : m_boxes)
        box->setLocked(locked);
    for (QComboBox *choice : m_choices)
        choice->setEnabled(!locked);
}

void SheetForm::setNew(bool isNew)
{
    m_isNew = isNew;
    showRequired();
}

/// Beside the labels where there is room, else in the boxes.
void SheetForm::showRequired()
{
    const bool isBeside = m_isNew && width() >= TypeScale::wide(requiredBesideFrom);
    for (std::size_t i = 0; i < m_required.size(); ++i)
        m_required[i]->setVisible((i % 2 != 0) == isBeside);
    m_nameLabel->setText(m_isNew ? u"Enter File Name:"_s : u"Name:"_s);
    const QString word = m_isNew && !isBeside ? ShellMessages::required() : QString();
    for (const std::size_t place : {nameBox, boxOf(Field::Odometer)})
        m_boxes[place]->setPlaceholderText(word);
    m_boxes[boxOf(Field::Make)]->setPlaceholderText(word.isEmpty() ? word : u"or the model"_s);
}

void SheetForm::setFacts(CarNeed::State registration, const Fact &insurance)
{
    m_registrationDue->setWords(registration, CarWords::registrationIsDue.toString());
    m_registrationDue->setVisible(registration >= CarNeed::State::Due);
    m_insuranceFact->setWords(insurance.state, insurance.words);
    m_insuranceFact->setVisible(!insurance.words.isEmpty());
}

/// Tab goes through the form in reading order.
void SheetForm::setTabOrders()
{
    constexpr std::array order{nameBox,
                               boxOf(Field::Odometer),
                               boxOf(Field::Make),
                               boxOf(Field::Model),
                               boxOf(Field::Vin),
                               boxOf(Field::License),
                               boxOf(Field::RegistrationMonth),
                               boxOf(Field::PurchaseDate),
                               boxOf(Field::Price),
                               boxOf(Field::From),
                               boxOf(Field::Picture),
                               boxOf(Field::Insurer),
                               boxOf(Field::InsurerTelephone),
                               boxOf(Field::Policy),
                               boxOf(Field::InsuranceExpiration),
                               boxOf(Field::OilFilter),
                               boxOf(Field::AirFilter),
                               boxOf(Field::PvcValve),
                               boxOf(Field::PlugType),
                               boxOf(Field::OilWeight),
                               boxOf(Field::OilChange),
                               boxOf(Field::CoolantChange),
                               boxOf(Field::Other)};
    static_assert(order.size() == count);
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(controlOf(order[i - 1]), controlOf(order[i]));
}

QSize SheetForm::minimumSizeHint() const
{
    // Never as wide as two columns ask for: the form is what decides between one and two.
    return {oneColumnWidth, layout()->minimumSize().height()};
}

int SheetForm::heightForWidth(int width) const
{
    return layout()->minimumHeightForWidth(width);
}

void SheetForm::resizeEvent(QResizeEvent *event)
{
    const bool isWide = width() >= TypeScale::wide(twoColumnsFrom);
    const auto direction = isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    m_columns->setDirection(direction);
    for (QBoxLayout *four : m_maintenanceRows) {
        four->setDirection(direction);
        four->setSpacing(isWide ? boxGap : rowGap);
    }
    showRequired();
    QWidget::resizeEvent(event);
}

/// The wheel scrolls the form, and chooses in no list that it happens to pass.
bool SheetForm::eventFilter(QObject *watched, QEvent *event)
{
    if (const auto *choice = qobject_cast<QComboBox *>(watched)) {
        if (event->type() == QEvent::Wheel && !choice->hasFocus() && !choice->lineEdit()->hasFocus()) {
            event->ignore();
            return true;
        }
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::FocusIn && watched->isWidgetType())
        emit boxFocused(static_cast<QWidget *>(watched));
    return QWidget::eventFilter(watched, event);
}
