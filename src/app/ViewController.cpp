// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ViewController.h"

#include "app/AudioFileDrop.h"
#include "app/EmptyWindowHint.h"
#include "app/IconManager.h"
#include "app/KeyDownMonitor.h"
#include "app/LoadingIndicator.h"
#include "audio/AudioManager.h"
#include "common/Clock.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/Defaults.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PracticePreferences.h"
#include "preferences/PreferenceKeys.h"
#include "transcript/TypingJournal.h"
#include "views/CheckBar.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QMainWindow>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QUndoStack>
#include <QThreadPool>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {
// The natural heights of the waveform strip and the status bar.
constexpr int kWaveformHeight = 180;
constexpr int kStatusBarHeight = 24;
constexpr int kAnimationMs = 300;
constexpr int kFollowIntervalMs = 300;
} // namespace

ViewController::ViewController(const SessionServices& services, QWidget* parent)
    : QWidget(parent), m_engine(services.engine), m_center(services.center),
      m_defaults(services.defaults), m_transcriptions(services.transcriptions),
      m_documents(services.documents), m_autoSave(services.autoSave),
      m_analysisQueue(std::make_unique<QThreadPool>())
{
    m_analysisQueue->setMaxThreadCount(1);
    buildViews();
    m_currentSegmentIndex = 0;
    m_statusBarLabel->setText(LocalizedString(Texts::NoAudioFileOpened));
    startAutoUpdateWavePosTimer(kFollowIntervalMs);
    m_table->setTranscriptionDelegate(this);
    m_waveformView->setTranscriptionDelegate(this);
    listenNotifications();
    // Key presses anywhere in the window reach the six shortcuts first.
    new KeyDownMonitor(*this, m_defaults, this);
    // A recording dropped anywhere on the window opens as one given on the
    // command line would.
    auto openDropped = [this](const QString& path) { openFileFromPath(path); };
    new AudioFileDrop(*window(), audioFileExtensions(), openDropped, this);
    setupStatusBar();
    setupConstraints();
    showUIElement();
}

ViewController::~ViewController()
{
    // The stack empties itself as it goes, and says so; the window that
    // listens is already being torn down.
    m_cuttingEdits->disconnect();
    // An alignment still running stops soon rather than at the exit.
    if (m_alignCancel)
        *m_alignCancel = true;
    savePracticeRecord();
    if (m_practiceTick)
        m_practiceTick->invalidate();
    m_center.removeObserver(this);
    // A load still running finishes before the engine it writes to can go.
    m_analysisQueue->waitForDone();
}

void ViewController::setSegmentsShown(qsizetype count)
{
    const bool wasShown = m_segmentsShown > 0;
    m_segmentsShown = count;
    if (wasShown != (count > 0))
        emit lessonShownChanged(count > 0);
}

void ViewController::buildViews()
{
    m_table = new TranscriptionTableView(m_engine, m_center, m_defaults, this);
    m_table->setAccessibleName(LocalizedString(Texts::Dictation));
    new EmptyWindowHint(*m_table);

    m_waveformContainer = new QWidget(this);
    m_waveformScrollArea = new QScrollArea(m_waveformContainer);
    m_waveformScrollArea->setFrameShape(QFrame::NoFrame);
    m_waveformScrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_waveformScrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_waveformScrollArea->setWidgetResizable(false);
    // A click in the strip selects a row to type in, so it leaves the keyboard
    // with the rows; Tab still reaches the strip to scroll it with the arrows.
    m_waveformScrollArea->setFocusPolicy(Qt::TabFocus);
    m_waveformView = new WaveformView(m_engine, m_center);
    m_waveformView->setAccessibleName(LocalizedString(Texts::Waveform));
    m_waveformScrollArea->setWidget(m_waveformView);
    auto* containerLayout = new QVBoxLayout(m_waveformContainer);
    containerLayout->setContentsMargins(0, 0, 0, 0);
    containerLayout->addWidget(m_waveformScrollArea);
    m_waveformOpacity = new QGraphicsOpacityEffect(m_waveformContainer);
    m_waveformOpacity->setOpacity(1.0);
    m_waveformContainer->setGraphicsEffect(m_waveformOpacity);

    m_statusBar = new QStatusBar(this);
    m_statusBar->setSizeGripEnabled(false);
    m_statusBarLabel = new QLabel(m_statusBar);
    m_statusBarLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_statusBarLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_statusBar->addWidget(m_statusBarLabel, 1);
    // A message is painted, not a widget: its text is the bar's accessible
    // description while it shows, so a screen reader can read it.
    connect(m_statusBar, &QStatusBar::messageChanged, m_statusBar,
            [bar = m_statusBar](const QString& message) { bar->setAccessibleDescription(message); });
    m_timeLabel = new QLabel(m_statusBar); // reserved for a time display
    m_timeLabel->hide();
    m_statusBarOpacity = new QGraphicsOpacityEffect(m_statusBar);
    m_statusBarOpacity->setOpacity(1.0);
    m_statusBar->setGraphicsEffect(m_statusBarOpacity);

    m_loadingIndicator = new LoadingIndicator(this);
    buildCheckBar();
    m_table->setRowToolTipSource([this](qint64 row) { return practiceSummary(row); });
    buildJournal();
    m_cuttingEdits = new QUndoStack(this);
    connect(m_waveformView, &WaveformView::boundaryMoved, this, &ViewController::moveSegmentStart);

    m_autoUpdateWavePosTimer = new QTimer(this);
    m_progressTimer = new QTimer(this);
    m_progressTimer->setInterval(50);
    connect(m_progressTimer, &QTimer::timeout, this, &ViewController::showAnalysisProgress);
}

void ViewController::listenNotifications()
{
    // An end timed at the old rate would cut the segment short or come late.
    m_center.addObserver(Notifications::AudioPlaybackRateDidChange, this,
                         [this](const NotificationCenter::Notification&) {
                             if (m_playbackTimer && m_playbackTimer->isValid() &&
                                 m_engine.isPlaying())
                                 armRepeatSwitchEnd();
                         });
    m_center.addObserver(Notifications::TableBackgroundColorDidChange, this,
                         [this](const NotificationCenter::Notification& n) {
                             if (!n.object.canConvert<QColor>() ||
                                 n.object.userType() != QMetaType::QColor)
                                 return;
                             QPalette palette = this->palette();
                             palette.setColor(QPalette::Window, n.object.value<QColor>());
                             setPalette(palette);
                             setAutoFillBackground(true);
                         });
    // The first background goes through the same road as every later change.
    const QColor background = ObjectStorage(m_defaults)
                                  .colorForKey(PreferenceKeys::TableBackgroundColor)
                                  .value_or(QColor());
    if (background.isValid())
        m_center.post(Notifications::TableBackgroundColorDidChange, background);

    m_center.addObserver(Notifications::ShowAudioWaveDidChange, this,
                         [this](const NotificationCenter::Notification& n) {
                             showWaveViewHidden(!n.object.toBool(), true);
                         });
    m_center.addObserver(Notifications::ShowStatusBarDidChange, this,
                         [this](const NotificationCenter::Notification& n) {
                             showStatusBarHidden(!n.object.toBool(), false);
                         });
    m_center.addObserver(Notifications::MouseDownSelectSegment, this,
                         [this](const NotificationCenter::Notification& n) {
                             bool ok = false;
                             const qint64 index = n.object.toLongLong(&ok);
                             if (ok && index != m_currentSegmentIndex) {
                                 stopAutoUpdateWavePos();
                                 playSegement(index);
                             }
                         });
    m_center.addObserver(Notifications::AutoUpdateWavePosDidUpdate, this,
                         [this](const NotificationCenter::Notification&) {
                             m_waveformView->setAutoUpdatePos(!m_engine.isRepeatMode());
                         });
    // The engine plays a changed gap, slower first or step back from its
    // next repetition; a new threshold changes which sentences are hard.
    m_center.addObserver(Notifications::PracticeOptionsDidChange, this,
                         [this](const NotificationCenter::Notification&) {
                             m_engine.setPracticeOptions(storedPracticeOptions(m_defaults));
                             refreshPracticeView();
                         });
}

void ViewController::setupStatusBar()
{
    // A flat grey band with a hairline along its bottom edge.
    m_statusBar->setObjectName(QStringLiteral("kelmoraStatusBar"));
    m_statusBar->setStyleSheet(QStringLiteral(
        "QStatusBar#kelmoraStatusBar { background: rgb(199, 203, 209);"
        " border-bottom: 1px solid rgb(223, 223, 223); }"
        "QStatusBar#kelmoraStatusBar::item { border: none; }"
        "QStatusBar#kelmoraStatusBar QLabel { color: rgb(40, 40, 40); padding-left: 6px; }"));
}

void ViewController::setupConstraints()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_checkBar);
    layout->addWidget(m_waveformContainer);
    layout->addWidget(m_statusBar);
    m_heightWaveView = kWaveformHeight;
    m_heightStatusBar = kStatusBarHeight;
    m_waveformContainer->setFixedHeight(m_heightWaveView);
    m_statusBar->setFixedHeight(m_heightStatusBar);
}

void ViewController::showUIElement()
{
    showStatusBarHidden(!m_defaults.boolForKey(PreferenceKeys::ShowStatusBar), false);
    showWaveViewHidden(!m_defaults.boolForKey(PreferenceKeys::ShowAudioWave), false);
}

void ViewController::animateHeight(QWidget* area, QGraphicsOpacityEffect* effect, int height,
                                   bool hidden, bool animated)
{
    const int target = hidden ? 0 : height;
    const double alpha = hidden ? 0.0 : 1.0;
    if (!animated) {
        area->setFixedHeight(target);
        effect->setOpacity(alpha);
        if (!hidden)
            area->update();
        return;
    }
    if (m_waveAnimation)
        m_waveAnimation->stop();
    auto* group = new QParallelAnimationGroup(this);
    for (const QByteArray& property : {QByteArray("minimumHeight"), QByteArray("maximumHeight")}) {
        auto* animation = new QPropertyAnimation(area, property, group);
        animation->setDuration(kAnimationMs);
        animation->setStartValue(area->height());
        animation->setEndValue(target);
        group->addAnimation(animation);
    }
    auto* fade = new QPropertyAnimation(effect, "opacity", group);
    fade->setDuration(kAnimationMs);
    fade->setStartValue(effect->opacity());
    fade->setEndValue(alpha);
    group->addAnimation(fade);
    connect(group, &QAbstractAnimation::finished, area, [area, hidden] {
        if (!hidden)
            area->update();
    });
    m_waveAnimation = group;
    group->start(QAbstractAnimation::DeleteWhenStopped);
}

void ViewController::showStatusBarHidden(bool hidden, bool animated)
{
    m_statusBar->setHidden(hidden);
    animateHeight(m_statusBar, m_statusBarOpacity, m_heightStatusBar, hidden, animated);
}

void ViewController::showWaveViewHidden(bool hidden, bool animated)
{
    if (!m_waveformView)
        return;
    m_waveformView->setHidden(hidden);
    animateHeight(m_waveformContainer, m_waveformOpacity, m_heightWaveView, hidden, animated);
}

void ViewController::setLessonContentHidden(bool hidden)
{
    QWidget* rows = m_table->viewport();
    QWidget* strip = m_waveformScrollArea->viewport();
    if (hidden == rows->isHidden())
        return;
    if (hidden) {
        // The row being typed in goes out of sight; the keys go to the
        // window meanwhile rather than to whatever Qt would pick next.
        QWidget* focus = window()->focusWidget();
        m_focusBeforeLoading = focus;
        if (focus && (rows->isAncestorOf(focus) || strip->isAncestorOf(focus)))
            setFocus(Qt::OtherFocusReason);
        rows->hide();
        strip->hide();
        return;
    }
    rows->show();
    strip->show();
    QWidget* before = m_focusBeforeLoading.data();
    m_focusBeforeLoading.clear();
    if (before && before->isVisible() && window()->focusWidget() == this)
        before->setFocus(Qt::OtherFocusReason);
}

QRect ViewController::frameKeepingCentre(const QRect& old, const QSize& size,
                                        const QRect& visible)
{
    // Never larger than the visible area: a window taller than the screen
    // hides its strip and status bar below the edge.
    const QSize fitted = visible.isEmpty() ? size : size.boundedTo(visible.size());
    QPoint origin(old.x() - (fitted.width() - old.width()) / 2,
                  old.y() - (fitted.height() - old.height()) / 2);
    // Then moved onto the visible area where the centre would take it off.
    auto keep = [](int start, int length, int visibleStart, int visibleLength) {
        if (start + length > visibleStart + visibleLength)
            start = visibleStart + visibleLength - length;
        return std::max(start, visibleStart);
    };
    origin.setX(keep(origin.x(), fitted.width(), visible.x(), visible.width()));
    origin.setY(keep(origin.y(), fitted.height(), visible.y(), visible.height()));
    return QRect(origin, fitted);
}

void ViewController::resizeWindowToWidth(int width, int height)
{
    QWidget* window = this->window();
    if (!window || window == this)
        return;
    QScreen* screen = window->screen();
    QRect visible = screen ? screen->availableGeometry() : QRect();
    // The window manager's frame around the window takes room too.
    const QRect inner = window->geometry();
    const QRect outer = window->frameGeometry();
    const QMargins frame(inner.left() - outer.left(), inner.top() - outer.top(),
                         outer.right() - inner.right(), outer.bottom() - inner.bottom());
    if (!visible.isEmpty())
        visible = visible.marginsRemoved(frame);
    const QRect placed = frameKeepingCentre(inner, QSize(width, height), visible);
    window->resize(placed.size());
    window->move(placed.topLeft() - QPoint(frame.left(), frame.top()));
}

void ViewController::updateToolbarItemImagName(const QString& identifier, const QString& imageName)
{
    auto* mainWindow = qobject_cast<QMainWindow*>(window());
    if (!mainWindow)
        return;
    for (QToolBar* toolbar : mainWindow->findChildren<QToolBar*>()) {
        for (QAction* action : toolbar->actions()) {
            if (action->objectName() == identifier)
                action->setIcon(IconManager::shared().iconForName(imageName));
        }
    }
}
