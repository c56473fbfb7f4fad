// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EmptyWindowHint.h"

#include "app/ContrastingInk.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QEvent>
#include <QKeySequence>
#include <QPainter>

EmptyWindowHint::EmptyWindowHint(QAbstractItemView& table)
    : QLabel(table.viewport()), m_table(table)
{
    setObjectName(QStringLiteral("emptyWindowHint"));
    // The key as the File menu shows it.
    setText(
        stringWithFormat(LocalizedString(Texts::EmptyWindowHint),
                         {QKeySequence(QKeySequence::Open).toString(QKeySequence::NativeText)}));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QFont larger = font();
    if (larger.pointSizeF() > 0)
        larger.setPointSizeF(larger.pointSizeF() * 1.3);
    setFont(larger);
    setGeometry(table.viewport()->rect());
    table.viewport()->installEventFilter(this);
    if (QAbstractItemModel* model = table.model()) {
        connect(model, &QAbstractItemModel::modelReset, this, &EmptyWindowHint::followRows);
        connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyWindowHint::followRows);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyWindowHint::followRows);
    }
    followRows();
}

QColor EmptyWindowHint::inkColorOver(const QColor& background)
{
    // White on dark colours, black on light ones: at least 4.5:1 on any colour.
    return needsLightInk(background) ? QColor(Qt::white) : QColor(Qt::black);
}

void EmptyWindowHint::followRows()
{
    const QAbstractItemModel* model = m_table.model();
    setVisible(!model || model->rowCount() == 0);
}

bool EmptyWindowHint::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(m_table.viewport()->rect());
    return QLabel::eventFilter(watched, event);
}

void EmptyWindowHint::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QWidget* viewport = m_table.viewport();
    painter.setPen(inkColorOver(viewport->palette().color(viewport->backgroundRole())));
    painter.setFont(font());
    const int margin = 24;
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, text());
}
