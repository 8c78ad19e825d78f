// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperkinds.h"
#include "shell/controls/datebox.h"

#include <QWidget>

#include <vector>

class OneTimeLine;
class SecretBox;

/// The boxes that the entries of one kind have.
class KindBoxes final : public QWidget
{
    Q_OBJECT
public:
    KindBoxes(EntryKind kind, const DateReading &reading, DatePicker *picker, QWidget *parent);

    void load(const KeeperEntry &entry);
    void store(KeeperEntry &entry) const;
    void setLocked(bool isLocked);
    QList<SecretBox *> secrets() const;

signals:
    void edited();
    /// Something could not be taken as it was typed.
    void said(const QString &line);
    void copyWanted(const QString &caption, const QString &text);
    void openWanted(const QString &address);
    /// Somebody is typing a password into `box`.
    void passwordTyped(SecretBox *box);
    /// A new password is to be made for `box`.
    void makeWanted(SecretBox *box);

private:
    using Box = KeeperKinds::Box;
    struct Field {
        Box box;
        QLineEdit *line;   ///< or null
        DateBox *date;     ///< the same line, of a date
        SecretBox *secret; ///< or null
    };

    QWidget *makeLine(const Box &box, Field &field);
    QWidget *makeSecret(const Box &box, Field &field);
    QWidget *withButton(QLineEdit *line, const QString &name, const QString &caption,
                        const std::function<void()> &run);
    static bool takesWholeRow(const Box &box);

    DateReading m_reading;
    DatePicker *m_picker;
    OneTimeLine *m_code = nullptr; ///< of kinds that have one-time codes
    std::vector<Field> m_fields;
};

/// A date as entries keep it, or what was typed in its place.
namespace KeptDate {

void show(DateBox &box, const QString &kept);
QString kept(const DateBox &box);

} // namespace KeptDate
