// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/entry/addresschooser.h"

#include <QObject>
#include <QPointer>

class AddressBook;
class EntryEditor;
class EntryList;
class LinkButton;

/// "Same Address as..." at the address of an entry that is open for typing: gives it the address of a name of
/// the book, first of all of who was saved last.
class SameAddressLink final : public QObject
{
    Q_OBJECT
public:
    /// Belongs to `editor`; the chooser floats over the window of `list`.
    SameAddressLink(const AddressBook &book, const EntryList &list, EntryEditor &editor, QWidget *window);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void open();
    AddressChooser::Outcome outcome(const QString &line) const;
    void take(const QString &line);
    void refresh();

    const AddressBook &m_book;
    const EntryList &m_list;
    EntryEditor &m_editor;
    LinkButton *m_link;
    AddressChooser *m_chooser = nullptr; ///< made when it is first asked for
    QWidget *m_window;
    QPointer<QWidget> m_cameFrom;
};
