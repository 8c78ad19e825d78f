// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/titledview.h"

class QLabel;
class TagBox;

/// What stands at the right while several entries are chosen: a tag for all of them; what else can be done
/// with them stands in the foot.
class SeveralView final : public TitledView
{
    Q_OBJECT
public:
    explicit SeveralView(QWidget *parent = nullptr);

    /// `titles` are those of the chosen entries, `tags` what is offered.
    void show(const QStringList &titles, const QStringList &tags);
    void startTags();

signals:
    void tagGiven(const QString &tag);
    void tagTaken(const QString &tag);
    void said(const QString &line);

private:
    void refresh() override {}
    void run(void (SeveralView::*wanted)(const QString &));

    TagBox *m_tag;
    QLabel *m_titles;
};
