// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressbook.h"
#include "shell/controls/taskpanel.h"
#include "shell/core/editedtexts.h"
#include "shell/pictures/picturefolder.h"

class AddressForm;
class ButtonRow;
class TitleLine;
struct Program;

/// The shown entry, locked or open for typing, with its title, its picture and the buttons below it. Knows
/// what the file has and what was typed.
class EntryEditor final : public QWidget
{
    Q_OBJECT
public:
    enum class Mode {
        View,   ///< the selected entry, locked
        Modify, ///< the selected entry, open for typing
        Entry   ///< a new entry
    };

    /// The calendar of the date boxes floats over `window`.
    EntryEditor(Program &program, QWidget *window);

    Mode mode() const { return m_mode; }
    bool isNew() const { return m_mode == Mode::Entry; }
    int record() const { return m_record; } ///< 0 for a new entry and where none can be shown
    /// Why the entry cannot be changed; empty when it can.
    QString whyUnchangeable() const;
    /// Whether the selected line leads to no entry, and can be deleted itself.
    bool isStray() const { return m_isStray; }
    /// The entry as the file has it.
    const AddressEntry &loaded() const { return m_loaded; }
    /// The entry as it would be saved.
    AddressEntry typed() const;
    bool isModified() const;

    /// Shows, locked, what this line of the list leads to, and says so when that is nothing to work with.
    void show(const AddressBook::Found &found, const QString &line = {});
    /// Empties the boxes for a new entry.
    void startNew();
    /// Opens the shown entry for typing.
    void modify() { setMode(Mode::Modify); }
    void lock() { setMode(Mode::View); }
    /// Writes what was typed and says how that went; what was written counts as loaded from here on.
    AddressBook::SaveResult save(AddressBook &book);
    /// Whose entry, or which line, `remove` deletes.
    QString names() const;
    [[nodiscard]] std::optional<RecordChange> remove(AddressBook &book, const QDateTime &now);

    /// A picture taken while the entry is locked opens it, so that it can be saved.
    void setPicture(const QString &stored);
    QString picture() const { return m_picture; }
    bool hasPicture() const;
    /// The file of the picture; empty when the entry has none, or it is not there.
    QString picturePath() const;

    AddressForm &form() const { return *m_form; }

    enum class On { BothScreens, ViewScreen, EntryScreen };
    /// Puts a button below the entry, seen on this screen only.
    void addButton(QPushButton *button, TaskPanel::Side side, On screen);
    /// Call after buttons were renamed.
    void rearrangeButtons();

signals:
    /// Another entry is shown, or the same in another mode.
    void changed();
    /// Another picture stands in the frame, and no file has it yet.
    void pictureExchanged(const QString &before, const QString &now);
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void load(const AddressEntry &entry);
    void setMode(Mode mode);
    void showPicture();
    void refreshModified();

    PictureFolder m_pictures;
    TitleLine *m_title;
    AddressForm *m_form;
    ButtonRow *m_buttons;
    QVector<QPushButton *> m_viewButtons;
    QVector<QPushButton *> m_entryButtons;
    Mode m_mode = Mode::View;
    int m_record = 0;
    int m_begunRecord = 0;    ///< of a new entry whose save was refused in the middle
    bool m_mayChange = false; ///< the selected line leads to the shown entry
    bool m_isStray = false;   ///< the selected line leads to no entry
    QString m_line;           ///< the selected one
    AddressEntry m_loaded;
    EditedTexts<AddressFieldCount> m_texts;
    QString m_picture; ///< path of the shown one
};
