// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/entryurls.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype fewestDigits = 3;

/// A web address in `text` as it is typed; empty without one.
QString webText(const QString &text)
{
    static const QRegularExpression form(uR"re((?:https?://|www\.)[^\s<>"]+\.[^\s<>"]*[^\s<>".,;:!?)])re"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return form.match(text).captured();
}

} // namespace

QUrl EntryUrls::mail(const QString &text)
{
    static const QRegularExpression form(uR"re([^\s@,;:<>()"]+@[^\s@,;:<>()"]+\.[^\s@,;:<>()".]+)re"_s);
    const QString address = form.match(text).captured();
    if (address.isEmpty())
        return {};
    QUrl url;
    url.setScheme(u"mailto"_s);
    url.setPath(address);
    return url;
}

QUrl EntryUrls::call(const QString &text)
{
    static const QRegularExpression form(uR"re(^\s*(\+?[(0-9][0-9 ().\-/]*[0-9])(?:\s+\D*)?$)re"_s);
    QString number = form.match(text).captured(1);
    const bool isInternational = number.startsWith(u'+');
    if (isInternational)
        number.remove(u"(0)"_s); // which is dialled inside the country only
    number.removeIf([](QChar character) { return character < u'0' || character > u'9'; });
    if (number.size() < fewestDigits)
        return {};
    return QUrl(u"tel:"_s + (isInternational ? u"+"_s : QString()) + number);
}

QUrl EntryUrls::web(const AddressEntry &entry)
{
    for (const QString &text : entry.texts) {
        const QString found = webText(text);
        if (QUrl url = QUrl::fromUserInput(found); !found.isEmpty() && url.isValid())
            return url;
    }
    return {};
}

QUrl EntryUrls::map(const AddressEntry &entry)
{
    constexpr std::array fields{Address1, Address2, PostalCode, City, State};
    QStringList parts;
    for (const AddressField field : fields) {
        if (const QString text = entry[field].trimmed(); !text.isEmpty() && webText(text).isEmpty())
            parts.append(text);
    }
    if (entry[Address1].trimmed().isEmpty() && entry[City].trimmed().isEmpty())
        return {};
    // Put together first: later versions of Qt ask for a view, which no sum of texts becomes by itself.
    const QByteArray address =
        "https://www.openstreetmap.org/search?query=" + QUrl::toPercentEncoding(parts.join(u", "_s));
    return QUrl::fromEncoded(address);
}
