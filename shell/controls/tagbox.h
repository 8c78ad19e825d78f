// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A box for tags, separated by commas or by another sign. Those that are known are offered while one is
/// typed.
class TagBox final : public QLineEdit
{
    Q_OBJECT
public:
    TagBox(const QString &name, QWidget *parent, QChar separator = u',');

    /// Of these the list offers what does not stand in the box already.
    void setOffered(const QStringList &tags);

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void offerOthers();

    const QChar m_separator;
    QStringList m_offered;
    QObject *m_listener = nullptr; ///< to what is chosen from the list
};
