// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepertexts.h"

#include "keeper/model/keeperkinds.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString ownMark = u"Own: "_s;
const QString secretMark = u"Own secret: "_s;

} // namespace

QString KeeperTexts::ownHeading(const KeeperText &field)
{
    return (field.isSecret ? secretMark : ownMark) + field.name;
}

std::optional<KeeperTexts::OwnField> KeeperTexts::ownField(const QString &heading)
{
    for (const QString &mark : {secretMark, ownMark}) {
        if (heading.startsWith(mark))
            return OwnField{heading.sliced(mark.size()), mark == secretMark};
    }
    return {};
}

bool KeeperTexts::isCaption(const QString &heading)
{
    return std::ranges::any_of(KeeperKinds::all,
                               [&heading](EntryKind kind) { return boxOf(kind, heading) != 0; });
}

quint8 KeeperTexts::boxOf(EntryKind kind, const QString &caption)
{
    const auto boxes = KeeperKinds::boxes(kind);
    const auto box = std::ranges::find(boxes, QStringView(caption), &KeeperKinds::Box::caption);
    return box == boxes.end() ? quint8(0) : box->id;
}

QStringList KeeperTexts::tags(const QString &text)
{
    KeeperEntry entry;
    entry.setText(KeeperField::Tags, text);
    return entry.tags();
}

EntryKind KeeperTexts::likelyKind(const KeeperEntry &entry)
{
    using namespace KeeperField;
    const auto has = [&entry](quint8 id) { return !entry.text(id).isEmpty(); };
    return has(UserName) || has(Password) || has(Address) || has(OneTimeSecret) ? EntryKind::LogIn
                                                                                : EntryKind::Note;
}

QString KeeperTexts::titleFor(const KeeperEntry &entry)
{
    QString title = site(entry.text(KeeperField::Address));
    if (title.isEmpty())
        title = entry.text(KeeperField::UserName);
    return title.isEmpty() ? u"Untitled"_s : title;
}

QString KeeperTexts::site(const QString &address)
{
    QString host = QUrl::fromUserInput(address.trimmed()).host().toLower();
    if (host.startsWith(u"www."_s))
        host.remove(0, 4);
    return host;
}

bool KeeperTexts::hasControls(const QString &text)
{
    return std::ranges::any_of(text, [](QChar character) {
        return character.category() == QChar::Other_Control && character != u'\n' && character != u'\t';
    });
}
