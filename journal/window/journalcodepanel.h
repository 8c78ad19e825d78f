// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

#include <QTimer>

class QLineEdit;

/// Shows a new recovery code of the journal, to be printed or written down: it goes on only when the code was
/// typed in from there, and is not shown meanwhile.
class JournalCodePanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit JournalCodePanel(QWidget *parent = nullptr);

    void show(const QString &code);
    const QString &code() const { return m_code; }
    /// Nothing of the code stays behind.
    void forget();

public slots:
    void leave() override;

signals:
    void printWanted(const QString &code);
    /// It was typed in.
    void kept();

private:
    void follow();
    bool isTyped() const;
    /// A click that was meant for the panel in front of this one is late.
    void holdLeaving();

    QString m_code;
    QLabel *m_shown;
    QLineEdit *m_typed;
    QLabel *m_refusal;
    QPushButton *m_go;
    QPushButton *m_leave;
    QTimer m_holding;
};
