// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/tagbox.h"

#include "shell/controls/pastefilter.h"

#include <QCompleter>
#include <QStringListModel>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Completes the last tag and leaves those before it alone.
class LastTag final : public QCompleter
{
public:
    LastTag(QLineEdit *box, QChar separator)
        : QCompleter(box)
        , m_box(box)
        , m_separator(separator)
    {
        setModel(new QStringListModel(this));
        setCaseSensitivity(Qt::CaseInsensitive);
    }

    QStringList splitPath(const QString &path) const override
    {
        return {path.mid(path.lastIndexOf(m_separator) + 1).trimmed()};
    }

    QString pathFromIndex(const QModelIndex &index) const override
    {
        const QString before = m_box->text().left(m_box->text().lastIndexOf(m_separator) + 1);
        return before.isEmpty() ? index.data().toString() : QString(before + u' ' + index.data().toString());
    }

private:
    QLineEdit *m_box;
    QChar m_separator;
};

} // namespace

TagBox::TagBox(const QString &name, QWidget *parent, QChar separator)
    : QLineEdit(parent)
    , m_separator(separator)
{
    setObjectName(name);
    new PasteFilter(this, Characters::All);
    setCompleter(new LastTag(this, separator));
    connect(this, &QLineEdit::textEdited, this, &TagBox::offerOthers); // the list opens behind that
}

/// What is chosen from the list is set as a text that nobody has typed; behind that it counts as typed. The
/// box begins to hear of its list whenever it gets the focus.
void TagBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    delete std::exchange(m_listener, new QObject(this));
    for (const auto signal : {qOverload<const QString &>(&QCompleter::activated),
                              qOverload<const QString &>(&QCompleter::highlighted)})
        connect(completer(), signal, m_listener, [this] { setModified(true); });
}

void TagBox::setOffered(const QStringList &tags)
{
    m_offered = tags;
    offerOthers();
}

void TagBox::offerOthers()
{
    QStringList others = m_offered;
    const QString before = text().left(text().lastIndexOf(m_separator) + 1);
    for (const QString &tag : before.split(m_separator, Qt::SkipEmptyParts))
        others.removeAll(tag.trimmed());
    auto *model = static_cast<QStringListModel *>(completer()->model());
    if (model->stringList() != others)
        model->setStringList(others);
}
