#include "app/LoadingIndicator.h"

#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <QPainter>
#include <QTimer>
#include <QtMath>

namespace {
constexpr int kSpinnerSize = 48;
constexpr int kSpokes = 12;
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
    hide();
}

QSize LoadingIndicator::sizeHint() const
{
    return {kSpinnerSize * 3, kSpinnerSize + fontMetrics().height() + 8};
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

void LoadingIndicator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(width() / 2.0, kSpinnerSize / 2.0);
    const QColor ink = palette().color(QPalette::WindowText);
    for (int i = 0; i < kSpokes; ++i) {
        // The spoke at the phase is darkest; the others fade behind it.
        const int age = (m_phase - i + kSpokes) % kSpokes;
        QColor colour = ink;
        colour.setAlphaF(1.0f - 0.8f * static_cast<float>(age) / kSpokes);
        painter.setPen(QPen(colour, 4.0, Qt::SolidLine, Qt::RoundCap));
        const double angle = 2.0 * M_PI * i / kSpokes;
        const QPointF direction(std::sin(angle), -std::cos(angle));
        painter.drawLine(centre + direction * 11.0, centre + direction * 21.0);
    }
    if (m_fraction >= 0.0) {
        painter.setPen(ink);
        const QRect textRect(0, kSpinnerSize + 4, width(), height() - kSpinnerSize - 4);
        painter.drawText(textRect, Qt::AlignHCenter | Qt::AlignTop,
                         QStringLiteral("%1%").arg(qRound(m_fraction * 100.0)));
    }
}
