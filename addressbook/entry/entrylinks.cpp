// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/entrylinks.h"

#include "addressbook/entry/addressform.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/entryurls.h"
#include "shell/controls/controls.h"
#include "shell/controls/linkbutton.h"

#include <QDesktopServices>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array fields{Address1, HomePhone, MobilePhone, Email, Email};

} // namespace

EntryLinks::EntryLinks(AddressForm &form, OpenAddress open)
    : QObject(&form)
    , m_form(form)
    , m_open(open ? std::move(open) : [](const QUrl &url) { return QDesktopServices::openUrl(url); })
{
    add(Map, u"linkMap"_s, u"Map"_s, u"Show the address on a map in the browser"_s);
    add(HomeCall, u"linkHomeCall"_s, u"Call"_s, u"Call the home phone with this computer"_s);
    add(MobileCall, u"linkMobileCall"_s, u"Call"_s, u"Call the mobile phone with this computer"_s);
    add(Web, u"linkWeb"_s, u"Web Site"_s, u"Open the web site in the browser"_s);
    add(Mail, u"linkMail"_s, u"Write"_s, u"Write an e-mail with the mail program"_s);
    connect(&form, &AddressForm::edited, this, &EntryLinks::refresh);
    refresh();
}

void EntryLinks::add(Link link, const QString &name, const QString &text, const QString &purpose)
{
    m_links[link] = new LinkButton(name, text, &m_form);
    m_links[link]->setAccessibleName(purpose);
    m_form.addLink(fields[link], m_links[link]);
    connect(m_links[link], &LinkButton::clicked, this, [this, link] { open(link); });
}

QUrl EntryLinks::urlOf(Link link) const
{
    const AddressEntry entry{m_form.texts(), {}};
    switch (link) {
    case Map:
        return EntryUrls::map(entry);
    case HomeCall:
    case MobileCall:
        return EntryUrls::call(entry[fields[link]]);
    case Mail:
        return EntryUrls::mail(entry[Email]);
    case Web:
        return EntryUrls::web(entry);
    case LinkCount:
        break;
    }
    return {};
}

void EntryLinks::open(Link link)
{
    if (const QUrl url = urlOf(link); !url.isEmpty() && !m_open(url))
        emit said(AddressLines::nothingOpens(url.toDisplayString()));
}

void EntryLinks::refresh()
{
    for (int i = 0; i < LinkCount; ++i) {
        const QUrl url = urlOf(Link(i));
        m_links[std::size_t(i)]->setToolTip(m_links[std::size_t(i)]->accessibleName() + u'\n' +
                                            url.toDisplayString());
        m_links[std::size_t(i)]->setVisible(!url.isEmpty());
    }
}
