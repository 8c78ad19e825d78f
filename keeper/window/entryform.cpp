// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/entryform.h"

#include "keeper/model/keeperkinds.h"
#include "keeper/window/kindboxes.h"
#include "keeper/window/ownfields.h"
#include "keeper/window/secretbox.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/tagbox.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int widestBoxes = 640;
constexpr int widestCommon = 380;
constexpr int twoColumnsFrom = 820;
constexpr int memberLength = 8; ///< characters
constexpr int columnGap = 28;
constexpr int rowGap = 8;
constexpr int boxGap = 12;
constexpr int kindWidth = 160;
constexpr int notesHeight = 96;

/// Lets Tab pass through what `layout` holds, parts of parts too, behind `before`; returns the last of it.
QWidget *chain(const QLayout &layout, QWidget *before)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        QWidget *part = item->widget();
        const QLayout *inner = part ? part->layout() : item->layout();
        if (part && part->focusPolicy() != Qt::NoFocus) {
            if (before)
                QWidget::setTabOrder(before, part);
            before = part;
        } else if (inner) {
            before = chain(*inner, before);
        }
    }
    return before;
}

} // namespace

EntryForm::EntryForm(const Program &program, QWidget *window, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_picker(new DatePicker(program.clock, program.settings, window, u"keeperCalendar"_s))
    , m_columns(new QBoxLayout(QBoxLayout::TopToBottom, this))
    , m_names(new QBoxLayout(QBoxLayout::LeftToRight))
    , m_title(named(new QLineEdit(this), u"entryTitle"_s))
    , m_kind(named(new QComboBox(this), u"entryKind"_s))
    , m_kindPlace(new QVBoxLayout)
    , m_own(named(new OwnFields(this), u"ownFields"_s))
    , m_tags(new TagBox(u"entryTags"_s, this))
    , m_member(named(new QComboBox(this), u"entryMember"_s))
    , m_expires(nullptr)
    , m_favourite(named(new QCheckBox(u"Favourite"_s, this), u"entryFavourite"_s))
    , m_notes(named(new QPlainTextEdit(this), u"entryNotes"_s))
{
    m_expires =
        named(new DateBox({program.state.dateStyle, program.clock}, m_picker, this), u"entryExpires"_s);
    m_expires->takeMonths(DateBox::MonthAlone::LastDay);
    for (const EntryKind kind : KeeperKinds::all)
        m_kind->addItem(KeeperKinds::name(kind), int(kind));
    m_member->setEditable(true);
    m_member->setInsertPolicy(QComboBox::NoInsert);
    m_member->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_member->setMinimumContentsLength(memberLength);
    m_notes->setMinimumHeight(notesHeight);
    m_notes->setTabChangesFocus(true);
    for (QLineEdit *box : {m_title, m_member->lineEdit()})
        new PasteFilter(box, Characters::All);
    auto *rows = new QVBoxLayout;
    rows->setSpacing(rowGap);
    rows->addLayout(makeHead());
    rows->addLayout(m_kindPlace);
    rows->addWidget(m_own);
    rows->addStretch(1);
    m_columns->setContentsMargins({});
    m_columns->addLayout(rows);
    m_columns->addLayout(makeCommon());
    setMaximumWidth(widestBoxes + columnGap + widestCommon);
    place();
    follow();
    showKind(EntryKind::LogIn);
}

QLayout *EntryForm::makeHead()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(boxGap);
    row->addLayout(labelled(makeFieldLabel(u"Title"_s, m_title, this, {}, true), m_title), 1);
    m_kind->setFixedWidth(boxWidth(u"Bank account"_s, kindWidth));
    row->addLayout(labelled(u"Kind"_s, m_kind));
    return row;
}

QLayout *EntryForm::makeCommon()
{
    m_names->addLayout(labelled(u"Tags"_s, m_tags, u"separated by commas"_s), 1);
    m_names->addLayout(labelled(u"Member"_s, m_member), 1);
    auto *expiry = new QHBoxLayout;
    expiry->setSpacing(boxGap);
    expiry->addLayout(labelled(u"Expires"_s, m_expires), 1);
    expiry->addWidget(m_favourite, 1, Qt::AlignBottom);
    m_favourite->setMinimumHeight(m_expires->sizeHint().height());
    auto *rows = new QVBoxLayout;
    rows->setSpacing(rowGap);
    rows->addLayout(m_names);
    rows->addLayout(expiry);
    rows->addLayout(labelled(u"Notes"_s, m_notes), 1);
    return rows;
}

/// What all kinds have stands beside the boxes of the kind where there is room, else below them.
void EntryForm::place()
{
    const bool isWide = width() >= TypeScale::wide(twoColumnsFrom);
    m_columns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_columns->setSpacing(isWide ? columnGap : rowGap);
    m_columns->setContentsMargins(0, 0, isWide ? 0 : std::max(0, width() - widestBoxes), 0);
    m_columns->setStretch(0, isWide ? widestBoxes : 0);
    m_columns->setStretch(1, isWide ? widestCommon : 1);
    m_names->setDirection(isWide ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_names->setSpacing(isWide ? rowGap : boxGap);
}

void EntryForm::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

void EntryForm::follow()
{
    for (QLineEdit *box : {m_title, static_cast<QLineEdit *>(m_tags)})
        connect(box, &QLineEdit::textChanged, this, &EntryForm::edited);
    connect(m_member, &QComboBox::editTextChanged, this, &EntryForm::edited);
    connect(m_expires, &QLineEdit::textChanged, this, &EntryForm::edited);
    connect(m_expires, &FieldBox::refused, this, &EntryForm::said);
    connect(m_favourite, &QCheckBox::toggled, this, &EntryForm::edited);
    connect(m_notes, &QPlainTextEdit::textChanged, this, &EntryForm::edited);
    connect(m_own, &OwnFields::edited, this, &EntryForm::edited);
    connect(m_own, &OwnFields::rowAdded, this, &EntryForm::orderTabs);
    connect(m_own, &OwnFields::copyWanted, this, &EntryForm::copyWanted);
    connect(m_kind, &QComboBox::currentIndexChanged, this, [this] {
        // What was typed into boxes that both kinds have goes along.
        KeeperEntry typed = m_loaded;
        m_shown->store(typed);
        showKind(kind());
        m_shown->load(typed);
        emit edited();
    });
}

EntryKind EntryForm::kind() const
{
    return EntryKind(m_kind->currentData().toInt());
}

KindBoxes &EntryForm::boxes(EntryKind kind)
{
    KindBoxes *&boxes = m_boxes[kind];
    if (!boxes) {
        boxes = new KindBoxes(kind, {m_program.state.dateStyle, m_program.clock}, m_picker, this);
        m_kindPlace->addWidget(boxes);
        connect(boxes, &KindBoxes::edited, this, &EntryForm::edited);
        connect(boxes, &KindBoxes::said, this, &EntryForm::said);
        connect(boxes, &KindBoxes::copyWanted, this, &EntryForm::copyWanted);
        connect(boxes, &KindBoxes::openWanted, this, &EntryForm::openWanted);
        connect(boxes, &KindBoxes::makeWanted, this, &EntryForm::makeWanted);
        connect(boxes, &KindBoxes::passwordTyped, this, &EntryForm::tellStrength);
    }
    return *boxes;
}

void EntryForm::tellStrength(SecretBox *box) const
{
    if (!m_strength)
        return;
    const KeeperEntry typed = entry();
    box->setWords(m_strength(box->secret(), typed.id,
                             {typed.text(KeeperField::Title), typed.text(KeeperField::UserName),
                              typed.text(KeeperField::Address), typed.text(KeeperField::NetworkName)}));
}

void EntryForm::showKind(EntryKind kind)
{
    KindBoxes &wanted = boxes(kind);
    for (const auto &[other, boxes] : m_boxes) {
        if (boxes != &wanted) {
            boxes->hide();
            boxes->load({}); // keeps no secrets behind what is shown
        }
    }
    m_shown = &wanted;
    m_shown->setLocked(m_isLocked);
    m_shown->show();
    orderTabs();
}

/// Boxes of a kind and own fields are made when they are needed, and would come last.
void EntryForm::orderTabs()
{
    chain(*layout(), nullptr);
}

void EntryForm::setOffered(const QStringList &tags, const QStringList &members)
{
    const QSignalBlocker quiet(m_member);
    const QString typed = m_member->currentText();
    m_tags->setOffered(tags);
    m_member->clear();
    m_member->addItems(members);
    m_member->setEditText(typed);
}

void EntryForm::load(const KeeperEntry &entry)
{
    m_loaded = entry;
    fill(entry);
    m_asShown = this->entry();
}

void EntryForm::showTyped(const KeeperEntry &typed)
{
    fill(typed);
    emit edited();
}

void EntryForm::fill(const KeeperEntry &entry)
{
    const QSignalBlocker quiet(this);
    hideSecrets();
    {
        const QSignalBlocker still(m_kind);
        m_kind->setCurrentIndex(m_kind->findData(int(entry.kind())));
    }
    m_kind->setEnabled(m_loaded.id.isEmpty() && !m_isLocked);
    showKind(entry.kind());
    m_shown->load(entry);
    m_own->load(entry);
    m_title->setText(entry.text(KeeperField::Title));
    m_title->setCursorPosition(0);
    m_tags->setText(entry.tags().join(u", "_s));
    m_member->setEditText(entry.text(KeeperField::Member));
    KeptDate::show(*m_expires, entry.text(KeeperField::Expires));
    m_favourite->setChecked(entry.isFavourite());
    m_notes->setPlainText(entry.text(KeeperField::Notes));
}

KeeperEntry EntryForm::entry() const
{
    KeeperEntry entry = m_loaded;
    entry.setKind(kind());
    entry.setText(KeeperField::Title, m_title->text().trimmed());
    m_shown->store(entry);
    m_own->store(entry);
    entry.setText(KeeperField::Tags, m_tags->text());
    entry.setTags(entry.tags());
    entry.setText(KeeperField::Member, m_member->currentText().trimmed());
    entry.setText(KeeperField::Expires, KeptDate::kept(*m_expires));
    entry.setText(KeeperField::Favourite, m_favourite->isChecked() ? u"1"_s : QString());
    entry.setText(KeeperField::Notes, m_notes->toPlainText());
    return entry;
}

bool EntryForm::isModified() const
{
    return !m_isLocked && entry() != m_asShown;
}

void EntryForm::setSaved(const KeeperEntry &entry)
{
    m_loaded = entry;
    m_kind->setEnabled(entry.id.isEmpty());
    m_asShown = this->entry();
    for (SecretBox *box : secrets()) {
        box->setWords({});
        box->settle();
    }
}

QString EntryForm::refusal()
{
    if (m_title->text().trimmed().isEmpty()) {
        m_title->setFocus();
        return KeeperWindowLines::titleMissing();
    }
    if (!m_expires->text().trimmed().isEmpty() && !m_expires->date()) {
        m_expires->setFocus();
        return KeeperWindowLines::expiresIsNoDate();
    }
    return {};
}

void EntryForm::setLocked(bool isLocked)
{
    m_isLocked = isLocked;
    m_title->setReadOnly(isLocked);
    m_tags->setReadOnly(isLocked);
    m_expires->setLocked(isLocked);
    m_notes->setReadOnly(isLocked);
    m_member->setEnabled(!isLocked);
    m_favourite->setEnabled(!isLocked);
    m_kind->setEnabled(!isLocked && m_loaded.id.isEmpty());
    m_own->setLocked(isLocked);
    m_shown->setLocked(isLocked);
}

QList<SecretBox *> EntryForm::secrets() const
{
    return m_shown->secrets() + m_own->secrets();
}

bool EntryForm::hasSecret() const
{
    return std::ranges::any_of(secrets(), [](const SecretBox *box) { return !box->secret().isEmpty(); });
}

bool EntryForm::isSecretShown() const
{
    return m_shown && std::ranges::any_of(secrets(), &SecretBox::isShown);
}

void EntryForm::toggleSecret()
{
    if (isSecretShown()) {
        hideSecrets();
        return;
    }
    const QList<SecretBox *> boxes = secrets();
    const QWidget *focused = window()->focusWidget();
    auto box = std::ranges::find_if(
        boxes, [focused](const SecretBox *each) { return focused && each->isAncestorOf(focused); });
    if (box == boxes.end())
        box = std::ranges::find_if(boxes, [](const SecretBox *each) { return !each->secret().isEmpty(); });
    if (box != boxes.end())
        (*box)->setShown(true);
}

void EntryForm::hideSecrets()
{
    if (!m_shown)
        return;
    for (SecretBox *box : secrets())
        box->setShown(false);
}

void EntryForm::startTyping()
{
    m_title->setFocus();
    m_title->selectAll();
}
