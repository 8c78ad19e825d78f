// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/albumprintpanel.h"

#include "album/window/windowlines.h"
#include "shell/controls/choicegrid.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using AlbumPages::Form;
using AlbumPages::PhotoSize;

constexpr int choiceWidth = 152;
constexpr std::array sizes{PhotoSize::Inches4x6, PhotoSize::Inches5x7, PhotoSize::Centimeters10x15,
                           PhotoSize::Centimeters13x18};

} // namespace

AlbumPrintPanel::AlbumPrintPanel(QWidget *parent)
    : TaskPanel(u"albumPrintPanel"_s, u"Print Options"_s, parent)
    , m_what(named(makeHeading({}, this), u"albumPrintWhat"_s))
    , m_forms(new ChoiceGrid(u"albumPrintForm"_s, this))
    , m_perSheet(makeChoice(u"albumPrintPerSheet"_s, u"Pictures to a sheet"_s))
    , m_size(makeChoice(u"albumPrintSize"_s, u"Size of the photographs"_s))
    , m_perBookSheet(makeChoice(u"albumPrintPerPage"_s, u"Pictures to a page of the book"_s))
    , m_filled(
          named(new QCheckBox(u"Cu&t pictures to the shape of their places"_s, this), u"albumPrintFilled"_s))
    , m_captions(named(new QCheckBox(u"&Captions"_s, this), u"albumPrintCaptions"_s))
    , m_dates(named(new QCheckBox(u"&Dates"_s, this), u"albumPrintDates"_s))
{
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    m_what->setWordWrap(true);
    column->addWidget(m_what);
    column->addSpacing(4);
    makeForms();
    column->addWidget(m_forms);
    column->addSpacing(8);
    for (QCheckBox *box : {m_captions, m_dates, m_filled})
        column->addWidget(box);
    column->addStretch(1);
    setContent(content);
    QPushButton *show = addButton(u"albumPrintShow"_s, u"Show Pa&ges"_s, ButtonKind::Main);
    QPushButton *close = setLeaveButton(u"albumPrintClose"_s, u"C&lose"_s);
    QWidget *last = m_forms->lastInTab();
    for (QWidget *part : std::initializer_list<QWidget *>{m_captions, m_dates, m_filled, show, close})
        setTabOrder(std::exchange(last, part), part);
    setFocusProxy(m_forms);
    m_captions->setChecked(true);
    m_dates->setChecked(true);
    connect(m_forms, &ChoiceGrid::chosenChanged, this, &AlbumPrintPanel::follow);
    connect(show, &QPushButton::clicked, this, &AlbumPrintPanel::accepted);
}

QComboBox *AlbumPrintPanel::makeChoice(const QString &name, const QString &spoken)
{
    auto *box = named(new QComboBox(this), name);
    box->setAccessibleName(spoken);
    box->setFixedWidth(boxWidth(u"20 to a sheet"_s, choiceWidth));
    return box;
}

void AlbumPrintPanel::makeForms()
{
    for (const int count : AlbumPages::perSheetOffered)
        m_perSheet->addItem(AlbumWindowLines::toASheet(count), count);
    for (const PhotoSize size : sizes)
        m_size->addItem(AlbumPages::sizeName(size));
    for (const int count : AlbumPages::perBookSheetOffered)
        m_perBookSheet->addItem(AlbumWindowLines::toAPage(count), count);
    m_perSheet->setCurrentIndex(int(AlbumPages::perSheetOffered.size()) - 2); // nine
    m_forms->add(u"&Several to a sheet"_s, m_perSheet);
    m_forms->add(u"Photog&raphs with cutting marks"_s, m_size);
    m_forms->add(u"Contact sheet with &file names"_s);
    m_forms->add(u"A &book with title, contents and stories"_s, m_perBookSheet);
}

void AlbumPrintPanel::start(const QString &name, int count)
{
    m_what->setText(AlbumWindowLines::printed(name, count));
    m_forms->choose(std::max(0, m_forms->chosen()));
    follow();
}

/// A contact sheet has the names of files in the place of captions, and shows all of each picture.
void AlbumPrintPanel::follow()
{
    const auto form = Form(m_forms->chosen());
    m_captions->setEnabled(form == Form::Sheets || form == Form::Book);
    m_dates->setEnabled(form != Form::Photographs);
    m_filled->setEnabled(form == Form::Sheets || form == Form::Photographs);
}

AlbumPages::Options AlbumPrintPanel::options() const
{
    return {.form = Form(m_forms->chosen()),
            .perSheet = m_perSheet->currentData().toInt(),
            .size = sizes[std::size_t(std::max(0, m_size->currentIndex()))],
            .isFilled = m_filled->isEnabled() && m_filled->isChecked(),
            .hasCaptions = m_captions->isEnabled() && m_captions->isChecked(),
            .hasDates = m_dates->isEnabled() && m_dates->isChecked(),
            .perBookSheet = m_perBookSheet->currentData().toInt()};
}

/// Enter on a choice takes it.
void AlbumPrintPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit accepted();
    else
        TaskPanel::keyPressEvent(event);
}
