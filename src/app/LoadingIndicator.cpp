// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LoadingIndicator.h"

#include "app/ContrastingInk.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <QtMath>

namespace {
constexpr int kSpinnerSize = 48;
constexpr int kSpokes = 12;
constexpr double kPlateRadius = 10.0;

// A plate that stands out from the background: light on a dark one, dark on
// a light one; and the ink that reads on that plate.
QColor plateColorOver(const QColor& background)
{
    return needsLightInk(background) ? QColor(245, 245, 245) : QColor(38, 38, 38);
}

QColor inkColorOver(const QColor& background)
{
    return needsLightInk(background) ? QColor(30, 30, 30) : QColor(240, 240, 240);
}
} // namespace

LoadingIndicator::LoadingIndicator(QWidget* parent) : QWidget(parent), m_timer(new QTimer(this))
{
    m_timer->setInterval(1000 / kSpokes);
    connect(m_timer, &QTimer::timeout, this, [this] {
        m_phase = (m_phase + 1) % kSpokes;
        update();
    });
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(LocalizedString(Texts::AnalysingAudio));
    resize(sizeHint());
    if (parent)
        parent->installEventFilter(this);
    hide();
}

QSize LoadingIndicator::sizeHint() const
{
    return {kSpinnerSize * 2 + 16, kSpinnerSize + fontMetrics().height() + 20};
}

void LoadingIndicator::startAnimation()
{
    m_timer->start();
}

void LoadingIndicator::stopAnimation()
{
    m_timer->stop();
}

bool LoadingIndicator::isAnimating() const
{
    return m_timer->isActive();
}

void LoadingIndicator::setFraction(double fraction)
{
    m_fraction = fraction;
    const QString done =
        fraction < 0.0 ? QString() : QStringLiteral(" %1%").arg(qRound(fraction * 100.0));
    setAccessibleDescription(LocalizedString(Texts::AnalysingAudio) + done);
    update();
}

void LoadingIndicator::centreInParent()
{
    if (QWidget* parent = parentWidget())
        move((parent->width() - width()) / 2, (parent->height() - height()) / 2);
}

bool LoadingIndicator::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        centreInParent();
    return QWidget::eventFilter(watched, event);
}

void LoadingIndicator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The background is what the parent fills with: the table colour.
    const QColor background = palette().color(QPalette::Window);
    const QColor plate = plateColorOver(background);
    const QColor ink = inkColorOver(background);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kPlateRadius,
                           kPlateRadius);
    QColor edge = ink;
    edge.setAlphaF(0.25f);
    painter.setPen(QPen(edge, 1.0));
    painter.setBrush(plate);
    painter.drawPath(outline);

    const QPointF centre(width() / 2.0, 8.0 + kSpinnerSize / 2.0);
    for (int i = 0; i < kSpokes; ++i) {
        // The spoke at the phase is darkest; the others fade behind it, but
        // never so far that the spinner stops reading on its plate.
        const int age = (m_phase - i + kSpokes) % kSpokes;
        QColor colour = ink;
        colour.setAlphaF(1.0f - 0.7f * static_cast<float>(age) / kSpokes);
        painter.setPen(QPen(colour, 4.0, Qt::SolidLine, Qt::RoundCap));
        const double angle = 2.0 * M_PI * i / kSpokes;
        const QPointF direction(std::sin(angle), -std::cos(angle));
        painter.drawLine(centre + direction * 11.0, centre + direction * 21.0);
    }
    if (m_fraction >= 0.0) {
        painter.setPen(ink);
        const QRect textRect(0, 8 + kSpinnerSize + 2, width(), height() - kSpinnerSize - 12);
        painter.drawText(textRect, Qt::AlignHCenter | Qt::AlignTop,
                         QStringLiteral("%1%").arg(qRound(m_fraction * 100.0)));
    }
}
