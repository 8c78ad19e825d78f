// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

class Manual;

/// Shows the manual's pages in the program's type and the colours of the panel that it lies on; a page's
/// address is its context.
class ManualBrowser final : public QTextBrowser
{
    Q_OBJECT
public:
    explicit ManualBrowser(const Manual &manual, QWidget *parent = nullptr);

    void openPage(int context);
    int currentContext() const;

    /// Marks every place where one of `words` stands and brings the first into view.
    void markWords(const QStringList &words);

    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void applyTheme();

    const Manual &m_manual;
};
