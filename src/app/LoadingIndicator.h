// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QTimer;

// The spinner shown while a file is analysed, with the fraction done beneath
// it once the engine reports one. It stands on a rounded plate whose colours
// are chosen against the background it is shown over (the table colour the
// learner picked), so both read on any of them. It keeps itself centred in
// its parent.
class LoadingIndicator : public QWidget
{
    Q_OBJECT
public:
    explicit LoadingIndicator(QWidget* parent = nullptr);

    void startAnimation();
    void stopAnimation();
    bool isAnimating() const;

    // 0..1, or a negative value for "not known yet" (the spinner alone).
    void setFraction(double fraction);
    double fraction() const { return m_fraction; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void centreInParent();

    QTimer* m_timer;
    int m_phase = 0;
    double m_fraction = -1.0;
};
