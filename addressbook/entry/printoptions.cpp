// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/printoptions.h"

#include "addressbook/entry/entryeditor.h"
#include "addressbook/entry/entrylist.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/messages.h"
#include "shell/controls/busycursor.h"
#include "shell/frame/functionwindow.h"
#include "shell/pictures/picturefolder.h"
#include "shell/program/program.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
/// How many entries the choice "from the selected name on" proposes.
constexpr int recommended = 16;
} // namespace

PrintOptions::PrintOptions(Program &program, const AddressBook &book, const EntryList &list,
                           const EntryEditor &editor, FunctionWindow *window)
    : TaskPanel(u"printOptions"_s, u"Print Options"_s, window)
    , m_program(program)
    , m_book(book)
    , m_list(list)
    , m_editor(editor)
    , m_window(window)
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(makeHeading(u"Several entries on each page, with their pictures"_s, content));
    column->addWidget(makeRange());
    column->addWidget(makeChoices());
    column->addStretch(1);
    setContent(content);
    setLeaveButton(u"printOptionsExit"_s, u"Close"_s);
}

QWidget *PrintOptions::makeRange()
{
    auto *range = new QWidget(this);
    auto *layout = new QGridLayout(range);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(8);
    layout->setHorizontalSpacing(8);
    m_all = named(new QRadioButton(range), u"printAll"_s);
    m_some = named(new QRadioButton(u"From the selected name on, entries:"_s, range), u"printSome"_s);
    m_count = named(new QSpinBox(range), u"printCount"_s);
    m_count->setAccessibleName(u"Number of entries to print"_s);
    m_count->setMinimumSize(96, 34);
    layout->addWidget(m_all, 0, 0, 1, 3);
    layout->addWidget(m_some, 1, 0);
    layout->addWidget(m_count, 1, 1);
    layout->setColumnStretch(2, 1);
    connect(m_some, &QRadioButton::toggled, this, &PrintOptions::offerCount);
    return range;
}

QWidget *PrintOptions::makeChoices()
{
    using AddressPages::PerSheet;
    auto *choices = new QWidget(this);
    auto *layout = new QGridLayout(choices);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(8);
    layout->setColumnStretch(1, 1);
    const auto addChoice = [&](QPushButton *button, const QString &words) {
        button->setMinimumWidth(160);
        const int row = layout->rowCount();
        layout->addWidget(button, row, 0);
        layout->addWidget(makeQuietLabel(words, choices), row, 1);
    };
    const std::array<std::pair<PerSheet, QString>, 3> sizes{
        {{PerSheet::Two, u"Large pictures, two entries a page"_s},
         {PerSheet::Four, u"Four entries a page"_s},
         {PerSheet::Eight, u"Small pictures, eight entries a page"_s}}};
    for (const auto &[perSheet, words] : sizes) {
        const QString number = QString::number(int(perSheet));
        QPushButton *button = makeButton(u"print"_s + number, u"Print &"_s + number, choices);
        connect(button, &QPushButton::clicked, this, [this, size = perSheet] { printCards(size); });
        addChoice(button, words);
        m_cards.append(button);
    }
    layout->setRowMinimumHeight(layout->rowCount(), 8);
    layout->addWidget(makeHeading(u"One page"_s, choices), layout->rowCount(), 0, 1, 2);
    m_entry = makeButton(u"printEntry"_s, u"&Print File"_s, choices);
    addChoice(m_entry, u"The entry that is shown"_s);
    QPushButton *worksheet = makeButton(u"printWorksheet"_s, u"Print &Worksheet"_s, choices);
    addChoice(worksheet, u"An empty form to fill in by hand"_s);
    connect(m_entry, &QPushButton::clicked, this, &PrintOptions::printShown);
    connect(worksheet, &QPushButton::clicked, this, &PrintOptions::printWorksheet);
    return choices;
}

void PrintOptions::start()
{
    const int total = m_list.names().count();
    const int selected = m_list.selectedRow();
    const int following = selected < 0 ? 0 : total - selected;
    m_all->setText(u"All entries: %1"_s.arg(total));
    m_count->setRange(1, std::max(1, following));
    m_count->setValue(std::min(recommended, following));
    setUnavailable(m_some, following > 0 ? QString() : AddressLines::chooseNameFirst());
    (following > 0 && total > recommended ? m_some : m_all)->setChecked(true);
    offerCount();
    for (QPushButton *button : std::as_const(m_cards))
        setUnavailable(button, total > 0 ? QString() : AddressLines::bookIsEmpty());
    setUnavailable(m_entry, selected >= 0 ? QString() : AddressLines::chooseNameFirst());
    m_cards.first()->setFocus();
}

void PrintOptions::offerCount()
{
    setUnavailable(m_count, m_some->isChecked() ? QString() : AddressLines::allArePrinted());
}

void PrintOptions::printShown()
{
    const auto page = [this](const PageContext &context) {
        return AddressPages::entryPage(m_editor.typed(), m_editor.picturePath(), context);
    };
    const QString names = m_editor.typed().fullName();
    m_window->showPreview(page, names.isEmpty() ? u"Entry"_s : names);
}

void PrintOptions::printWorksheet()
{
    m_window->showPreview(AddressPages::worksheet, u"Family and Friends Worksheet"_s);
}

std::vector<int> PrintOptions::chosenRecords() const
{
    const NameList &names = m_list.names();
    return m_some->isChecked() ? AddressPages::recordsOf(names, m_list.selectedRow(), m_count->value())
                               : AddressPages::recordsOf(names, 0, names.count());
}

void PrintOptions::printCards(AddressPages::PerSheet perSheet)
{
    using AddressPages::PicturePlaces;
    const AddressPages::Entries entries = AddressPages::entriesOf(m_book, chosenRecords());
    int pictures = 0;
    {
        const BusyCursor busy;
        pictures = AddressPages::countPictures(entries);
    }
    if (pictures > AddressPages::recommendedPictures &&
        m_program.dialogs.ask(this, AddressMessages::manyPictures()) != Answer::Ok)
        return;
    const PicturePlaces places = pictures > 0 ? PicturePlaces::OnEachCard : PicturePlaces::None;
    const auto find = [folder = PictureFolder(m_program.folder)](const QString &stored) {
        return folder.locate(stored);
    };
    m_window->showSheets(
        [=](const PageContext &context) {
            return AddressPages::cards(perSheet, entries, places, find, context);
        },
        u"Family and Friends"_s);
}
