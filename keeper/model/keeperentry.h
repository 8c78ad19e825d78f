// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

/// What the keeper keeps: one account, card, document or note, as it is while it is shown and edited.
/// `Secfile1.Fil` holds it sealed, field by field.
namespace KeeperField {
/// The fields by their numbers in the file. Those from 20 to 99 belong to one kind each.
enum Id : quint8 {
    Kind = 1,
    Title = 2,
    UserName = 3,
    Password = 4,
    Address = 5,
    OneTimeSecret = 6,
    Notes = 7,
    Tags = 8,
    Member = 9,
    Expires = 10,
    Favourite = 11,
    BankName = 20,
    BankHolder = 21,
    BankAccountNumber = 22,
    BankCode = 23,
    BankPin = 24,
    CardHolder = 30,
    CardNumber = 31,
    CardValidFrom = 32,
    CardCode = 33,
    CardPin = 34,
    CardLostCall = 35,
    NetworkName = 40,
    NetworkProtection = 41,
    RouterAddress = 42,
    Product = 50,
    LicenceKey = 51,
    LicensedTo = 52,
    BoughtOn = 53,
    OrderNumber = 54,
    DocumentNumber = 60,
    DocumentHolder = 61,
    DocumentIssued = 62,
    DocumentIssuedBy = 63,
    DocumentPlace = 64,
    Own = 255
};
} // namespace KeeperField

enum class EntryKind { LogIn, BankAccount, Card, WiFi, Licence, Document, Note };

/// One text of an entry. A field of an unknown number is kept and written back. A secret is overwritten when
/// the last one who holds it lets it go.
struct KeeperText {
    quint8 id = 0;
    bool isSecret = false;
    QString name; ///< what the user calls it; own fields alone
    QString text;

    KeeperText() = default;
    KeeperText(quint8 number, bool isHidden, QString caption, QString content);
    KeeperText(const KeeperText &) = default;
    KeeperText(KeeperText &&) noexcept = default;
    KeeperText &operator=(KeeperText other) noexcept;
    ~KeeperText();

    void setText(const QString &other);

    bool operator==(const KeeperText &) const = default;
};
Q_DECLARE_TYPEINFO(KeeperText, Q_RELOCATABLE_TYPE);

/// One entry, secrets included: held only while it is shown, edited or printed.
struct KeeperEntry {
    QByteArray id; ///< 16 bytes, drawn when the entry is first saved; empty before
    QList<KeeperText> fields;

    EntryKind kind() const;
    void setKind(EntryKind kind);

    /// The text of the first field `id`; empty when there is none.
    QString text(quint8 id) const;
    /// Puts `text` there; an empty one takes the field away. Fields that their kind keeps secret are marked
    /// so.
    void setText(quint8 id, const QString &text);

    QStringList tags() const;
    void setTags(const QStringList &tags);
    /// When it expires; invalid when it never does.
    QDate expires() const;
    bool isFavourite() const { return !text(KeeperField::Favourite).isEmpty(); }

    bool operator==(const KeeperEntry &) const = default;
};
