// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperkinds.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace KeeperField;
using KeeperKinds::Box;
using KeeperKinds::Input;

constexpr Box logInBoxes[] = {
    {UserName, u"User name"},
    {Password, u"Password", Input::Password, true},
    {Address, u"Web address", Input::Address},
    {OneTimeSecret, u"One-time secret", Input::OneTimeSecret, true},
};
constexpr Box bankBoxes[] = {
    {BankName, u"Bank"},
    {BankHolder, u"Account holder"},
    {BankAccountNumber, u"Account number"},
    {BankCode, u"Bank code"},
    {BankPin, u"PIN", Input::Password, true},
    {Address, u"Web address", Input::Address},
    {UserName, u"User name"},
    {Password, u"Password", Input::Password, true},
};
constexpr Box cardBoxes[] = {
    {CardHolder, u"Card holder"},
    {CardValidFrom, u"Valid from", Input::Date},
    {CardNumber, u"Card number", Input::Line, true},
    {CardCode, u"Security code", Input::Password, true},
    {CardPin, u"PIN", Input::Password, true},
    {CardLostCall, u"If lost, call"},
};
constexpr Box wiFiBoxes[] = {
    {NetworkName, u"Network name"},
    {NetworkProtection, u"Protection"},
    {Password, u"Password", Input::Password, true},
    {RouterAddress, u"Router's address", Input::Address},
};
constexpr Box licenceBoxes[] = {
    {Product, u"Product"},
    {LicensedTo, u"Licensed to"},
    {LicenceKey, u"Licence key", Input::Password, true},
    {BoughtOn, u"Bought on", Input::Date},
    {OrderNumber, u"Order number"},
    {Address, u"Web address", Input::Address},
};
constexpr Box documentBoxes[] = {
    {DocumentNumber, u"Number"},
    {DocumentHolder, u"Holder"},
    {DocumentIssued, u"Issued", Input::Date},
    {DocumentIssuedBy, u"Issued by"},
    {DocumentPlace, u"Where the paper lies"},
};

struct KindRow {
    EntryKind kind;
    QStringView name;
    QStringView word;
    std::span<const Box> boxes;
};

const std::array<KindRow, std::size(KeeperKinds::all)> kinds{{
    {EntryKind::LogIn, u"Log-in", u"login", logInBoxes},
    {EntryKind::BankAccount, u"Bank account", u"bank", bankBoxes},
    {EntryKind::Card, u"Card", u"card", cardBoxes},
    {EntryKind::WiFi, u"Wi-Fi", u"wifi", wiFiBoxes},
    {EntryKind::Licence, u"Licence", u"licence", licenceBoxes},
    {EntryKind::Document, u"Document", u"document", documentBoxes},
    {EntryKind::Note, u"Note", u"note", {}},
}};

const KindRow &row(EntryKind kind)
{
    return kinds[static_cast<std::size_t>(kind)];
}

constexpr Box commonBoxes[] = {
    {Title, u"Title"},   {Notes, u"Notes", Input::Lines},    {Tags, u"Tags"},
    {Member, u"Member"}, {Expires, u"Expires", Input::Date}, {Favourite, u"Favourite"},
};

const Box *findBox(quint8 id)
{
    const auto isIt = [id](const Box &box) { return box.id == id; };
    for (const KindRow &kind : kinds) {
        if (const auto box = std::ranges::find_if(kind.boxes, isIt); box != kind.boxes.end())
            return &*box;
    }
    const auto *common = std::ranges::find_if(commonBoxes, isIt);
    return common == std::end(commonBoxes) ? nullptr : common;
}

} // namespace

namespace KeeperKinds {

QString name(EntryKind kind)
{
    return row(kind).name.toString();
}

QString word(EntryKind kind)
{
    return row(kind).word.toString();
}

EntryKind kind(QStringView word)
{
    const auto *found = std::ranges::find(kinds, word, &KindRow::word);
    return found == kinds.end() ? EntryKind::Note : found->kind;
}

std::span<const Box> boxes(EntryKind kind)
{
    return row(kind).boxes;
}

bool isSecret(quint8 id)
{
    const Box *box = findBox(id);
    return box && box->isSecret;
}

QString caption(const KeeperText &field)
{
    if (field.id == Own)
        return field.name;
    const Box *box = findBox(field.id);
    return box ? box->caption.toString() : u"Field %1"_s.arg(field.id);
}

} // namespace KeeperKinds
