// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>

#include <vector>

/// Boxes beside one another, those that find no room in the row in another one below. They stand on the same
/// foot, so that a box with its label above and one without stand in line.
class FlowRow final : public QLayout
{
    Q_OBJECT
public:
    explicit FlowRow(int gap, QWidget *parent = nullptr);
    ~FlowRow() override;

    void addItem(QLayoutItem *item) override;
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    /// As wide as the widest of them.
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect &rect) override;

private:
    int place(const QRect &rect, bool isMoved) const;

    int m_gap;
    std::vector<QLayoutItem *> m_items;
};
