// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/tagbox.h"

#include "shell/controls/pastefilter.h"

#include <QCompleter>
#include <QStringListModel>

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
{
    setObjectName(name);
    new PasteFilter(this, Characters::All);
    setCompleter(new LastTag(this, separator));
}

void TagBox::setOffered(const QStringList &tags)
{
    static_cast<QStringListModel *>(completer()->model())->setStringList(tags);
}
