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
    explicit LastTag(QLineEdit *box)
        : QCompleter(box)
        , m_box(box)
    {
        setModel(new QStringListModel(this));
        setCaseSensitivity(Qt::CaseInsensitive);
    }

    QStringList splitPath(const QString &path) const override
    {
        return {path.mid(path.lastIndexOf(u',') + 1).trimmed()};
    }

    QString pathFromIndex(const QModelIndex &index) const override
    {
        const QString before = m_box->text().left(m_box->text().lastIndexOf(u',') + 1);
        return before.isEmpty() ? index.data().toString() : QString(before + u' ' + index.data().toString());
    }

private:
    QLineEdit *m_box;
};

} // namespace

TagBox::TagBox(const QString &name, QWidget *parent)
    : QLineEdit(parent)
{
    setObjectName(name);
    new PasteFilter(this, Characters::All);
    setCompleter(new LastTag(this));
}

void TagBox::setOffered(const QStringList &tags)
{
    static_cast<QStringListModel *>(completer()->model())->setStringList(tags);
}
