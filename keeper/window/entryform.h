// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"

#include <QWidget>

#include <functional>
#include <map>
#include <utility>

class DateBox;
class DatePicker;
class KindBoxes;
class OwnFields;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QVBoxLayout;
class SecretBox;
class TagBox;
struct Program;

/// An entry in its boxes: those of its kind, the user's own fields, and what all kinds have.
class EntryForm final : public QWidget
{
    Q_OBJECT
public:
    /// The calendar of the date boxes opens in `window`.
    EntryForm(const Program &program, QWidget *window, QWidget *parent = nullptr);

    /// What is said of a password while it is typed for entry `id`, of which `known` tells, too.
    using Strength =
        std::function<QString(const QString &password, const QByteArray &id, const QStringList &known)>;
    void setStrength(Strength strength) { m_strength = std::move(strength); }
    /// What other entries have and the household's names are offered while tags and member are typed.
    void setOffered(const QStringList &tags, const QStringList &members);
    /// The kind of an entry that no file has can still be chosen.
    void load(const KeeperEntry &entry);
    /// The same entry as somebody had begun to change it.
    void showTyped(const KeeperEntry &typed);
    /// As it stands in the boxes.
    KeeperEntry entry() const;
    bool isModified() const;
    /// What is shown is what the file has now.
    void setSaved(const KeeperEntry &entry);
    /// Why it cannot be saved as it is, with the focus in the box that is meant; empty when it can.
    QString refusal();

    /// For reading only: what was deleted, what is shown of an earlier day.
    void setLocked(bool isLocked);
    /// Shows the secret that has the focus, or the first one, or hides them all again.
    void toggleSecret();
    void hideSecrets();
    bool isSecretShown() const;
    bool hasSecret() const;
    void startTyping();

protected:
    void resizeEvent(QResizeEvent *event) override;

signals:
    void edited();
    void said(const QString &line);
    void copyWanted(const QString &caption, const QString &text);
    void openWanted(const QString &address);
    void makeWanted(SecretBox *box);

private:
    void fill(const KeeperEntry &entry);
    QLayout *makeHead();
    QLayout *makeCommon();
    void place();
    void follow();
    KindBoxes &boxes(EntryKind kind);
    void showKind(EntryKind kind);
    void orderTabs();
    QList<SecretBox *> secrets() const;
    EntryKind kind() const;
    void tellStrength(SecretBox *box) const;

    const Program &m_program;
    DatePicker *m_picker;
    Strength m_strength;
    KeeperEntry m_loaded;  ///< as it came
    KeeperEntry m_asShown; ///< as it stood in the boxes then
    QBoxLayout *m_columns; ///< the boxes of the kind, and what all kinds have: beside or below each other
    QBoxLayout *m_names;   ///< tags and member
    QLineEdit *m_title;
    QComboBox *m_kind;
    QVBoxLayout *m_kindPlace;
    std::map<EntryKind, KindBoxes *> m_boxes; ///< those that were needed so far
    KindBoxes *m_shown = nullptr;
    OwnFields *m_own;
    TagBox *m_tags;
    QComboBox *m_member;
    DateBox *m_expires;
    QCheckBox *m_favourite;
    QPlainTextEdit *m_notes;
    bool m_isLocked = false;
};
