// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/kindboxes.h"

#include "keeper/window/onetimeline.h"
#include "keeper/window/secretbox.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/pastefilter.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using KeeperKinds::Input;

namespace {
constexpr int columnGap = 12;
constexpr int rowGap = 8;
} // namespace

KindBoxes::KindBoxes(EntryKind kind, const DateReading &reading, DatePicker *picker, QWidget *parent)
    : QWidget(parent)
    , m_reading(reading)
    , m_picker(picker)
{
    setObjectName(u"boxes_"_s + KeeperKinds::word(kind));
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(columnGap);
    grid->setVerticalSpacing(rowGap);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    int row = 0;
    int column = 0;
    for (const Box &box : KeeperKinds::boxes(kind)) {
        Field field{box, nullptr, nullptr, nullptr};
        QWidget *shown = box.isSecret ? makeSecret(box, field) : makeLine(box, field);
        m_fields.push_back(field);
        const bool isWide = takesWholeRow(box);
        if (isWide && column == 1) {
            ++row;
            column = 0;
        }
        QLayout *whole = labelled(box.caption.toString(), shown);
        grid->addLayout(whole, row, column, 1, isWide ? 2 : 1, Qt::AlignTop);
        column = isWide ? 0 : 1 - column;
        row += column == 0 ? 1 : 0;
    }
}

bool KindBoxes::takesWholeRow(const Box &box)
{
    return box.isSecret || box.input == Input::Address || box.id == KeeperField::UserName ||
           box.id == KeeperField::DocumentPlace;
}

QWidget *KindBoxes::makeLine(const Box &box, Field &field)
{
    const QString name = u"entryBox_%1"_s.arg(box.id);
    if (box.input == Input::Date) {
        field.date = named(new DateBox(m_reading, m_picker, this), name);
        field.date->takeMonths(DateBox::MonthAlone::FirstDay);
        field.line = field.date;
        connect(field.date, &FieldBox::refused, this, &KindBoxes::said);
    } else {
        field.line = named(new QLineEdit(this), name);
        new PasteFilter(field.line, Characters::All);
    }
    QLineEdit *line = field.line;
    line->setAccessibleName(box.caption.toString());
    connect(line, &QLineEdit::textEdited, this, &KindBoxes::edited);
    if (field.date)
        connect(field.date, &DateBox::dateChanged, this, &KindBoxes::edited);
    if (box.input == Input::Address)
        return withButton(line, u"openAddress_%1"_s.arg(box.id), u"Open"_s,
                          [this, line] { emit openWanted(line->text()); });
    if (box.id == KeeperField::UserName) {
        return withButton(line, u"copyUserName"_s, u"Copy"_s,
                          [this, line, box] { emit copyWanted(box.caption.toString(), line->text()); });
    }
    return line;
}

QWidget *KindBoxes::withButton(QLineEdit *line, const QString &name, const QString &caption,
                               const std::function<void()> &run)
{
    auto *both = new QWidget(this);
    auto *row = new QHBoxLayout(both);
    row->setContentsMargins({});
    row->setSpacing(8);
    QPushButton *button = makeButton(name, caption, both);
    button->setAccessibleName(caption + u' ' + line->accessibleName());
    connect(button, &QPushButton::clicked, this, [run] { run(); });
    const auto follow = [line, button] {
        setUnavailable(button, line->text().isEmpty() ? KeeperWindowLines::boxIsEmpty() : QString());
    };
    connect(line, &QLineEdit::textChanged, button, follow);
    follow();
    row->addWidget(line, 1);
    row->addWidget(button);
    both->setFocusProxy(line);
    return both;
}

QWidget *KindBoxes::makeSecret(const Box &box, Field &field)
{
    const QString caption = box.caption.toString();
    auto *secret = new SecretBox(u"entrySecret_%1"_s.arg(box.id), caption, this);
    field.secret = secret;
    connect(secret, &SecretBox::edited, this, &KindBoxes::edited);
    connect(secret, &SecretBox::copyWanted, this,
            [this, secret, caption] { emit copyWanted(caption, secret->secret()); });
    if (box.id == KeeperField::Password) {
        connect(secret, &SecretBox::typed, this, [this, secret] { emit passwordTyped(secret); });
        QPushButton *making = makeButton(u"makePassword"_s, u"&Make..."_s, secret);
        making->setAccessibleName(u"Make a password"_s);
        connect(making, &QPushButton::clicked, this, [this, secret] { emit makeWanted(secret); });
        secret->addButton(making);
    }
    if (box.input != Input::OneTimeSecret)
        return secret;
    auto *both = new QWidget(this);
    auto *rows = new QVBoxLayout(both);
    rows->setContentsMargins({});
    rows->setSpacing(6);
    m_code = new OneTimeLine(m_reading.clock, both);
    rows->addWidget(secret);
    rows->addWidget(m_code);
    both->setFocusProxy(secret);
    connect(secret, &SecretBox::edited, m_code, [this, secret] { m_code->setSecret(secret->secret()); });
    connect(m_code, &OneTimeLine::copyWanted, this,
            [this](const QString &code) { emit copyWanted(KeeperWindowLines::oneTimeCode(), code); });
    return both;
}

void KindBoxes::load(const KeeperEntry &entry)
{
    for (const Field &field : m_fields) {
        const QString text = entry.text(field.box.id);
        if (field.secret)
            field.secret->setSecret(text);
        else if (field.date)
            KeptDate::show(*field.date, text);
        else
            field.line->setText(text);
        if (field.line)
            field.line->setCursorPosition(0);
    }
    if (m_code)
        m_code->setSecret(entry.text(KeeperField::OneTimeSecret));
}

void KindBoxes::store(KeeperEntry &entry) const
{
    for (const Field &field : m_fields) {
        const QString text = field.secret ? field.secret->secret()
                             : field.date ? KeptDate::kept(*field.date)
                                          : field.line->text().trimmed();
        entry.setText(field.box.id, text);
    }
}

void KindBoxes::setLocked(bool isLocked)
{
    for (const Field &field : m_fields) {
        if (field.secret)
            field.secret->setLocked(isLocked);
        else if (field.date)
            field.date->setLocked(isLocked);
        else
            field.line->setReadOnly(isLocked);
    }
    if (auto *making = findChild<QPushButton *>(u"makePassword"_s))
        making->setVisible(!isLocked);
}

QList<SecretBox *> KindBoxes::secrets() const
{
    QList<SecretBox *> boxes;
    for (const Field &field : m_fields) {
        if (field.secret)
            boxes.append(field.secret);
    }
    return boxes;
}

namespace KeptDate {

void show(DateBox &box, const QString &kept)
{
    if (const QDate date = QDate::fromString(kept, Qt::ISODate); date.isValid())
        box.setDate(date);
    else
        box.setText(kept);
}

QString kept(const DateBox &box)
{
    const auto date = box.date();
    return date ? date->toString(Qt::ISODate) : box.text().trimmed();
}

} // namespace KeptDate
