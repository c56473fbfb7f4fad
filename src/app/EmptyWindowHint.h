// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

class QAbstractItemView;

// The centred line an empty window shows over its table: how to open a
// recording. It lies in the table's viewport, so it goes with the rows while
// a lesson is analysed, and shows exactly while the table has no rows. Its
// ink is chosen against the table colour; it takes no clicks.
class EmptyWindowHint : public QLabel
{
    Q_OBJECT
public:
    explicit EmptyWindowHint(QAbstractItemView& table);

    // The hint's ink over a background of the given colour.
    static QColor inkColorOver(const QColor& background);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followRows();

    QAbstractItemView& m_table;
};
