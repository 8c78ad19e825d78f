// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <array>
#include <functional>

class AddressForm;
class LinkButton;
class QUrl;

/// The links beside the boxes of an entry: to the mail program, the telephone, the browser, a map. Each is
/// seen while the boxes hold something that it can use.
class EntryLinks final : public QObject
{
    Q_OBJECT
public:
    /// Opens an address on the desktop; false when no program takes it.
    using OpenAddress = std::function<bool(const QUrl &)>;

    /// Belongs to `form`. Without `open`, the desktop opens the addresses.
    explicit EntryLinks(AddressForm &form, OpenAddress open = {});

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    enum Link { Map, HomeCall, MobileCall, Mail, Web, LinkCount };

    void add(Link link, const QString &name, const QString &text, const QString &purpose);
    QUrl urlOf(Link link) const;
    void open(Link link);
    void refresh();

    AddressForm &m_form;
    OpenAddress m_open;
    std::array<LinkButton *, LinkCount> m_links{};
};
