// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/sameaddresslink.h"

#include "addressbook/entry/addressform.h"
#include "addressbook/entry/entryeditor.h"
#include "addressbook/entry/entrylist.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/sameaddress.h"
#include "shell/controls/linkbutton.h"

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

SameAddressLink::SameAddressLink(const AddressBook &book, const EntryList &list, EntryEditor &editor,
                                 QWidget *window)
    : QObject(&editor)
    , m_book(book)
    , m_list(list)
    , m_editor(editor)
    , m_link(new LinkButton(u"sameAddress"_s, u"Same &Address as..."_s, &editor.form()))
    , m_window(window)
{
    m_link->setAccessibleName(u"Same address as somebody else"_s);
    m_link->setToolTip(u"Takes street, town, country, postal code and home phone of another entry"_s);
    editor.form().addLinkBefore(Address1, m_link);
    connect(m_link, &LinkButton::clicked, this, &SameAddressLink::open);
    connect(&editor, &EntryEditor::changed, this, &SameAddressLink::refresh);
    connect(this, &SameAddressLink::said, &editor, &EntryEditor::said);
    refresh();
}

void SameAddressLink::refresh()
{
    if (m_chooser)
        m_chooser->dismiss();
    m_link->setVisible(m_editor.mode() != EntryEditor::Mode::View && !m_list.names().isEmpty());
}

void SameAddressLink::open()
{
    m_cameFrom = QApplication::focusWidget();
    if (!m_chooser) {
        m_chooser = new AddressChooser(m_window, [this](const QString &line) { return outcome(line); });
        connect(m_chooser, &AddressChooser::chosen, this, &SameAddressLink::take);
    }
    m_chooser->open(m_link, m_list.names(), m_list.savedRow(), m_list.shownRow());
}

AddressChooser::Outcome SameAddressLink::outcome(const QString &line) const
{
    const AddressEntry from = m_book.open(line).entry;
    if (!SameAddress::hasAny(from))
        return {AddressLines::noAddressKept(), {}};
    const QString replaced = SameAddress::replaced(from, m_editor.form().texts());
    return {SameAddress::onOneLine(from.texts),
            replaced.isEmpty() ? QString() : AddressLines::replaces(replaced)};
}

/// Typed into the boxes as a person would, so that Ctrl+Z in a box brings back what stood there.
void SameAddressLink::take(const QString &line)
{
    const AddressEntry from = m_book.open(line).entry;
    if (!SameAddress::hasAny(from)) {
        emit said(AddressLines::noAddressKept());
        return;
    }
    AddressForm &form = m_editor.form();
    const SameAddress::Texts own = form.texts();
    const bool isReplacing = !SameAddress::replaced(from, own).isEmpty();
    const SameAddress::Texts taken = SameAddress::taken(from, own);
    for (int field = 0; field < AddressFieldCount; ++field) {
        FieldBox *box = form.box(AddressField(field));
        if (taken[std::size_t(field)] == own[std::size_t(field)])
            continue;
        box->selectAll();
        box->insert(taken[std::size_t(field)]);
        box->setCursorPosition(0);
    }
    // On with what is still to be typed.
    const bool wasInName = m_cameFrom == form.box(LastName) || m_cameFrom == form.box(FirstName);
    (wasInName ? m_cameFrom.data() : form.box(MobilePhone))->setFocus(Qt::OtherFocusReason);
    emit said(AddressLines::sameAddress(from.fullName(), isReplacing));
}
