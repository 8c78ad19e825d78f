// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/ownfields.h"

#include "keeper/window/secretbox.h"
#include "shell/controls/controls.h"
#include "shell/controls/pastefilter.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QLineEdit *makeBox(const QString &name, const QString &words, QWidget *parent)
{
    auto *box = named(new QLineEdit(parent), name);
    box->setPlaceholderText(words);
    box->setAccessibleName(words);
    new PasteFilter(box, Characters::All);
    return box;
}

} // namespace

OwnFields::OwnFields(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_add(makeButton(u"addOwnField"_s, u"Add a &Field"_s, this))
{
    m_layout->setContentsMargins({});
    m_layout->setSpacing(8);
    m_layout->addWidget(m_add, 0, Qt::AlignLeft);
    connect(m_add, &QPushButton::clicked, this, [this] {
        addRow({KeeperField::Own, false, {}, {}});
        m_rows.back().name->setFocus();
    });
}

void OwnFields::load(const KeeperEntry &entry)
{
    for (const Row &row : std::exchange(m_rows, {}))
        delete row.whole;
    m_made = 0;
    for (const KeeperText &field : entry.fields) {
        if (field.id == KeeperField::Own)
            addRow(field);
    }
}

void OwnFields::store(KeeperEntry &entry) const
{
    erase_if(entry.fields, [](const KeeperText &field) { return field.id == KeeperField::Own; });
    for (const Row &row : m_rows) {
        const QString name = row.name->text().trimmed();
        const QString text = textOf(row);
        if (!name.isEmpty() || !text.isEmpty())
            entry.fields.append({KeeperField::Own, row.isSecret->isChecked(), name, text});
    }
}

void OwnFields::setLocked(bool isLocked)
{
    m_isLocked = isLocked;
    m_add->setVisible(!isLocked);
    for (const Row &row : m_rows) {
        row.name->setReadOnly(isLocked);
        row.plain->setReadOnly(isLocked);
        row.secret->setLocked(isLocked);
        row.isSecret->setEnabled(!isLocked);
        row.remove->setVisible(!isLocked);
    }
}

QList<SecretBox *> OwnFields::secrets() const
{
    QList<SecretBox *> boxes;
    for (const Row &row : m_rows) {
        if (row.isSecret->isChecked())
            boxes.append(row.secret);
    }
    return boxes;
}

void OwnFields::addRow(const KeeperText &field)
{
    const QString number = QString::number(m_made++);
    auto *whole = new QWidget(this);
    auto *lines = new QVBoxLayout(whole);
    lines->setContentsMargins({});
    lines->setSpacing(4);
    auto *head = new QHBoxLayout;
    head->setSpacing(8);
    const Row row{whole,
                  makeBox(u"ownName_"_s + number, u"Name of the field"_s, whole),
                  makeBox(u"ownText_"_s + number, u"Text"_s, whole),
                  new SecretBox(u"ownSecret_"_s + number, field.name, whole),
                  named(new QCheckBox(u"Secret"_s, whole), u"ownIsSecret_"_s + number),
                  makeButton(u"ownRemove_"_s + number, u"Remove"_s, whole)};
    row.name->setText(field.name);
    row.plain->setText(field.isSecret ? QString() : field.text);
    row.secret->setSecret(field.isSecret ? field.text : QString());
    row.isSecret->setChecked(field.isSecret);
    row.remove->setAccessibleName(u"Remove this field"_s);
    head->addWidget(row.name, 1);
    head->addWidget(row.isSecret);
    head->addWidget(row.remove);
    lines->addLayout(head);
    lines->addWidget(row.plain);
    lines->addWidget(row.secret);
    row.isSecret->setMinimumHeight(row.name->sizeHint().height());
    row.plain->setVisible(!field.isSecret);
    row.secret->setVisible(field.isSecret);
    m_layout->insertWidget(int(m_rows.size()), whole);
    m_rows.push_back(row);
    setLocked(m_isLocked);

    for (QLineEdit *box : {row.name, row.plain})
        connect(box, &QLineEdit::textEdited, this, &OwnFields::edited);
    connect(row.name, &QLineEdit::textChanged, &row.secret->line(), &SecretLine::setCaption);
    connect(row.secret, &SecretBox::edited, this, &OwnFields::edited);
    connect(row.secret, &SecretBox::copyWanted, this,
            [this, row] { emit copyWanted(row.name->text(), row.secret->secret()); });
    connect(row.isSecret, &QCheckBox::toggled, this, [this, row] {
        turn(row);
        emit edited();
    });
    connect(row.remove, &QPushButton::clicked, this, [this, whole] { removeRow(whole); });
    emit rowAdded();
}

void OwnFields::removeRow(QWidget *whole)
{
    std::erase_if(m_rows, [whole](const Row &row) { return row.whole == whole; });
    whole->hide();
    whole->deleteLater();
    m_add->setFocus();
    emit edited();
}

/// The text goes to the other box.
void OwnFields::turn(const Row &row) const
{
    const bool isSecret = row.isSecret->isChecked();
    if (isSecret)
        row.secret->setSecret(row.plain->text());
    else
        row.plain->setText(row.secret->secret());
    isSecret ? row.plain->clear() : row.secret->setSecret({});
    row.plain->setVisible(!isSecret);
    row.secret->setVisible(isSecret);
}

QString OwnFields::textOf(const Row &row)
{
    return row.isSecret->isChecked() ? row.secret->secret() : row.plain->text();
}
