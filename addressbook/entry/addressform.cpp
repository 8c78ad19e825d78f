// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/addressform.h"

#include "addressbook/model/datefacts.h"
#include "addressbook/model/entrylines.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/core/clock.h"
#include "shell/core/dates.h"
#include "shell/look/theme.h"
#include "shell/pictures/pictureframe.h"
#include "shell/program/program.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowGap = 12;
constexpr int boxGap = 14;
constexpr int columnGap = 28;
constexpr int linkGap = 6;
/// Boxes are never wider than this.
constexpr int greatestWidth = 640;
constexpr int greatestPicture = 460;
constexpr int leastPicture = 110;
constexpr int oneColumnWidth = 300;
/// From this width on the second group stands beside the first.
constexpr int twoColumnsFrom = 600;
/// The last name's box is one shorter: a last name that fills its field reads as a record that is free.
constexpr int lastNameWidth = addressTextWidth - 1;

constexpr std::array<QLatin1StringView, AddressFieldCount> captions{
    "Last Name:"_L1,  "First Name:"_L1,    "Date of Birth:"_L1,   "Address:"_L1,    ""_L1,
    "City:"_L1,       "State/Country:"_L1, "Postal Zip/Code:"_L1, "Home Phone:"_L1, "Mobile Phone:"_L1,
    "Fax Number:"_L1, "Email Address:"_L1, "Anniversary Date:"_L1};

QString dateHint(DateStyle style)
{
    return u'(' + Dates::boxForm(style) + u')';
}

QHBoxLayout *row()
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(boxGap);
    return layout;
}

/// Quiet words beside a box, on the line of its text.
QLabel *makeFact(const QString &name, QWidget *parent)
{
    QLabel *fact = named(makeQuietLabel({}, parent), name);
    fact->setMinimumHeight(34);
    fact->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    fact->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    fact->setWordWrap(true);
    return fact;
}

} // namespace

AddressForm::AddressForm(Program &program, QWidget *window, QWidget *parent)
    : QWidget(parent)
    , m_clock(program.clock)
    , m_style(program.state.dateStyle)
    , m_picker(new DatePicker(program.clock, program.settings, window))
{
    makeBoxes();
    makeDialButtons();
    m_columns = new QBoxLayout(QBoxLayout::LeftToRight, this);
    m_columns->setContentsMargins(0, 0, 0, 0);
    m_columns->setSpacing(columnGap);
    m_columns->addWidget(makeHomeColumn(), 5);
    m_columns->addWidget(makeOtherColumn(), 3);
    setMaximumWidth(2 * greatestWidth + columnGap);
    setTabOrders();
    paintIcons();
}

void AddressForm::makeBoxes()
{
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        FieldBox *box = named(makeBox(AddressField(i)), u"Text1_"_s + QString::number(i));
        m_boxes[i] = box;
        box->setByteLimit(i == LastName ? lastNameWidth : int(addressTextWidth));
        box->setMinimumWidth(40);
        box->setAccessibleName(i == Address2 ? u"Address, second line"_s : QString(captions[i]).chopped(1));
        box->installEventFilter(this);
        connect(box, &QLineEdit::textChanged, this, &AddressForm::edited);
        connect(box, &FieldBox::refused, this, &AddressForm::said);
    }
}

FieldBox *AddressForm::makeBox(AddressField field)
{
    if (field != BirthDate && field != AnniversaryDate)
        return new FieldBox(this);
    auto *box = new DateBox({m_style, m_clock}, m_picker, this);
    (field == BirthDate ? m_birth : m_anniversary) = box;
    if (field == BirthDate)
        box->takeNoFuture();
    connect(box, &DateBox::dateChanged, this, &AddressForm::refreshFacts);
    connect(box, &DateBox::lockedDateShown, this, [this] { emit said(AddressLines::lockedDate()); });
    return box;
}

void AddressForm::makeDialButtons()
{
    constexpr std::array fields{HomePhone, MobilePhone};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        QPushButton *button = makeIconButton(u"Image2_"_s + QString::number(i), "dial"_L1,
                                             u"Dial Phone Number using computer modem"_s, this);
        button->setFixedHeight(34);
        button->setAccessibleName(i == 0 ? u"Dial home phone"_s : u"Dial mobile phone"_s);
        connect(button, &QPushButton::clicked, this,
                [this, box = m_boxes[fields[i]]] { emit dialRequested(box->text()); });
        m_dialButtons[i] = button;
    }
}

QWidget *AddressForm::makeHomeColumn()
{
    auto *column = new QWidget(this);
    column->setMaximumWidth(greatestWidth);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(rowGap);
    QLabel *heading = makeHeading(u"Individual and Home Address Information"_s, this);
    heading->setWordWrap(true);
    layout->addWidget(heading);

    m_lastNameLabel = makeFieldLabel(captions[LastName], m_boxes[LastName], this);
    m_requiredLabel = makeFieldLabel(captions[LastName], m_boxes[LastName], this, {}, true);
    // Rich text is a little higher, and would push the box out of its row.
    m_requiredLabel->setFixedHeight(m_lastNameLabel->sizeHint().height());
    m_nameHint = named(makeQuietLabel({}, this), u"nameHint"_s);
    m_nameHint->setWordWrap(true);
    m_nameHint->hide();
    QHBoxLayout *names = row();
    QVBoxLayout *lastName = labelled(m_lastNameLabel, m_boxes[LastName]);
    lastName->insertWidget(1, m_requiredLabel);
    names->addLayout(lastName, 1);
    names->addLayout(labelled(captions[FirstName], m_boxes[FirstName]), 1);
    layout->addLayout(names);
    layout->addWidget(m_nameHint);

    m_birthFact = makeFact(u"birthFact"_s, this);
    QHBoxLayout *birth = row();
    birth->addLayout(labelled(captions[BirthDate], m_boxes[BirthDate], dateHint(m_style)), 1);
    birth->addWidget(m_birthFact, 1, Qt::AlignBottom);
    layout->addLayout(birth);

    layout->addLayout(labelledWithLinks(Address1));
    layout->addWidget(m_boxes[Address2]);
    addPlace(layout);
    addPhones(layout);
    layout->addStretch(1);
    return column;
}

QVBoxLayout *AddressForm::labelledWithLinks(AddressField field)
{
    auto *head = new QHBoxLayout;
    head->setSpacing(linkGap);
    head->addWidget(makeFieldLabel(captions[field], m_boxes[field], this), 1);
    m_linkRows[field] = head;
    auto *layout = new QVBoxLayout;
    layout->setSpacing(1);                                         // a link is a little higher than a label
    head->addStrut(QFontMetrics(TypeScale::label()).height() + 2); // also while no link is shown
    layout->addLayout(head);
    layout->addWidget(m_boxes[field]);
    return layout;
}

void AddressForm::addLink(AddressField field, QWidget *link)
{
    m_linkRows[field]->addWidget(link);
    setTabOrder(m_lastInOrder, link);
    m_lastInOrder = link;
}

void AddressForm::addLinkBefore(AddressField field, QWidget *link)
{
    m_linkRows[field]->insertWidget(1, link);
    setTabOrder(m_boxes[field]->previousInFocusChain(), link);
}

void AddressForm::addPlace(QVBoxLayout *column)
{
    QHBoxLayout *place = row();
    place->addLayout(labelled(captions[City], m_boxes[City]), 3);
    place->addLayout(labelled(captions[State], m_boxes[State]), 3);
    place->addLayout(labelled(captions[PostalCode], m_boxes[PostalCode]), 2);
    column->addLayout(place);
}

void AddressForm::addPhones(QVBoxLayout *column)
{
    QHBoxLayout *phones = row();
    constexpr std::array fields{HomePhone, MobilePhone};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        auto *boxAndDial = new QHBoxLayout;
        boxAndDial->setSpacing(6);
        boxAndDial->addLayout(labelledWithLinks(fields[i]), 1);
        boxAndDial->addWidget(m_dialButtons[i], 0, Qt::AlignBottom);
        phones->addLayout(boxAndDial, 1);
    }
    column->addLayout(phones);
    m_dialing = named(new QLabel(u"Dialing..."_s, this), u"Label3"_s);
    m_dialing->hide();
    column->addWidget(m_dialing);
}

QWidget *AddressForm::makeOtherColumn()
{
    auto *column = new QWidget(this);
    column->setMaximumWidth(greatestWidth);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(rowGap);
    m_picture = named(new PictureFrame(this), u"Image1"_s);
    m_picture->setWords(u"No Picture Currently Loaded"_s);
    m_picture->setAccessibleName(u"Picture"_s);
    m_enlarge = makeButton(u"pictureEnlarge"_s, u"Enlarge"_s, m_picture);
    m_enlarge->hide();
    connect(m_picture, &PictureFrame::matChanged, this, &AddressForm::placeEnlargeButton);
    layout->addWidget(m_picture, 100);
    QLabel *heading = makeHeading(u"Other Important Information and Dates"_s, this);
    heading->setWordWrap(true);
    layout->addWidget(heading);
    layout->addLayout(labelled(captions[Fax], m_boxes[Fax]));
    layout->addLayout(labelledWithLinks(Email));
    m_anniversaryFact = makeFact(u"anniversaryFact"_s, this);
    auto *boxAndFact = new QWidget(this);
    auto *anniversary = new QHBoxLayout(boxAndFact);
    anniversary->setContentsMargins(0, 0, 0, 0);
    anniversary->setSpacing(boxGap);
    anniversary->addWidget(m_anniversary, 1);
    anniversary->addWidget(m_anniversaryFact, 1);
    layout->addLayout(labelled(
        makeFieldLabel(captions[AnniversaryDate], m_anniversary, this, dateHint(m_style)), boxAndFact));
    layout->addStretch(1);
    return column;
}

void AddressForm::tidyDates()
{
    m_birth->tidy();
    m_anniversary->tidy();
}

AddressForm::Texts AddressForm::texts() const
{
    Texts texts;
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        texts[i] = m_boxes[i]->text();
    return texts;
}

void AddressForm::setTexts(const Texts &texts)
{
    m_picker->dismiss();
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        m_boxes[i]->setText(texts[i]);
        m_boxes[i]->setCursorPosition(0);
    }
    refreshFacts();
}

void AddressForm::setLocked(bool locked)
{
    m_picker->dismiss();
    for (FieldBox *box : m_boxes)
        box->setLocked(locked);
}

void AddressForm::setNameHint(const QString &hint)
{
    m_nameHint->setText(hint);
    m_nameHint->setVisible(!hint.isEmpty());
}

void AddressForm::setRequiredShown(bool shown)
{
    m_requiredLabel->setVisible(shown);
    m_lastNameLabel->setVisible(!shown);
}

void AddressForm::refreshFacts()
{
    const QDate today = m_clock.today();
    m_birthFact->setText(DateFacts::ofBirth(m_birth->date().value_or(QDate()), today, m_style));
    m_anniversaryFact->setText(DateFacts::ofAnniversary(m_anniversary->date().value_or(QDate()), today));
}

/// Tab goes through the form in reading order.
void AddressForm::setTabOrders()
{
    const std::array<QWidget *, 16> order{
        m_boxes[LastName],  m_boxes[FirstName], m_boxes[BirthDate],   m_boxes[Address1],
        m_boxes[Address2],  m_boxes[City],      m_boxes[State],       m_boxes[PostalCode],
        m_boxes[HomePhone], m_dialButtons[0],   m_boxes[MobilePhone], m_dialButtons[1],
        m_enlarge,          m_boxes[Fax],       m_boxes[Email],       m_boxes[AnniversaryDate]};
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    m_lastInOrder = order.back();
}

/// The picture takes the height that the second group leaves, but no more than it can fill.
void AddressForm::fitPicture()
{
    const bool twoColumns = m_columns->direction() == QBoxLayout::LeftToRight;
    // Beside the home address it gives way to the boxes below it, which a screen of 768 rows would cut else.
    const int least = twoColumns ? leastPicture : m_picture->minimumSizeHint().height();
    m_picture->setMinimumHeight(least);
    m_picture->setMaximumHeight(
        std::clamp(m_picture->tallestMat(), least, twoColumns ? greatestPicture : 238));
}

void AddressForm::placeEnlargeButton()
{
    fitPicture();
    m_enlarge->setVisible(m_picture->hasPicture());
    const QRect mat = m_picture->mat();
    m_enlarge->adjustSize();
    constexpr int inset = 15;
    m_enlarge->move(std::max(mat.left() + std::min(inset, (mat.width() - m_enlarge->width()) / 2),
                             mat.right() - m_enlarge->width() - inset),
                    mat.bottom() - m_enlarge->height() - inset);
}

void AddressForm::paintIcons()
{
    const Icons::Scheme scheme = Theme::of(this).scheme;
    for (QPushButton *button : m_dialButtons)
        button->setIcon(Icons::tinted("dial"_L1, scheme, Theme::of(this).accent));
    m_enlarge->setIcon(Icons::icon("zoom-in"_L1, scheme));
}

QSize AddressForm::minimumSizeHint() const
{
    // Never as wide as two columns ask for: the form is what decides between one and two.
    return {oneColumnWidth, m_columns->minimumSize().height()};
}

int AddressForm::heightForWidth(int width) const
{
    return m_columns->minimumHeightForWidth(width);
}

void AddressForm::resizeEvent(QResizeEvent *event)
{
    const bool twoColumns = width() >= twoColumnsFrom;
    m_columns->setDirection(twoColumns ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    fitPicture();
    QWidget::resizeEvent(event);
}

void AddressForm::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange && m_enlarge)
        paintIcons();
    QWidget::changeEvent(event);
}

bool AddressForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn && watched->isWidgetType())
        emit boxFocused(static_cast<QWidget *>(watched));
    return QWidget::eventFilter(watched, event);
}
