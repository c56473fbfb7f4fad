// SPDX-License-Identifier: GPL-3.0-or-later
#include "RealSoundSupport.h"

#include "PlayerTestSupport.h"
#include "audio/AudioPlayer.h"
#include "support/TestSupport.h"

#include <QElapsedTimer>
#include <cmath>
#include <complex>
#include <gtest/gtest.h>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>

namespace RealSoundSupport {

namespace {

using Complex = std::complex<double>;

void fft(std::vector<Complex>& a, bool inverse)
{
    const size_t n = a.size();
    for (size_t i = 1, j = 0; i < n; ++i) {
        size_t bit = n >> 1;
        for (; j & bit; bit >>= 1)
            j ^= bit;
        j ^= bit;
        if (i < j)
            std::swap(a[i], a[j]);
    }
    for (size_t len = 2; len <= n; len <<= 1) {
        const double angle = 2 * M_PI / double(len) * (inverse ? 1 : -1);
        const Complex step(std::cos(angle), std::sin(angle));
        for (size_t i = 0; i < n; i += len) {
            Complex w(1);
            for (size_t k = 0; k < len / 2; ++k, w *= step) {
                const Complex u = a[i + k], v = a[i + k + len / 2] * w;
                a[i + k] = u + v;
                a[i + k + len / 2] = u - v;
            }
        }
    }
}

std::unique_ptr<PulseServer> g_server;
QString g_whyNot;
bool g_started = false;

// Stops the server after the last test, while the application still runs.
class ServerEnvironment : public ::testing::Environment
{
public:
    void TearDown() override { g_server.reset(); }
};

} // namespace

PulseServer* sharedServer(QString* whyNot)
{
    if (!g_started) {
        g_started = true;
        // A player starved by other work on the machine leaves gaps that say
        // nothing about the engine; as root, this process (the threads it
        // starts from here on) is given the precedence the server and the
        // recorder get.
        if (::geteuid() == 0)
            ::setpriority(PRIO_PROCESS, 0, -10);
        g_server = PulseServer::start(&g_whyNot);
        ::testing::AddGlobalTestEnvironment(new ServerEnvironment);
    }
    if (whyNot)
        *whyNot = g_whyNot;
    return g_server.get();
}

// Where `reference` best lines up inside `signal`.
Match locate(const std::vector<float>& signal, const std::vector<float>& reference)
{
    size_t n = 1;
    while (n < signal.size() + reference.size())
        n <<= 1;
    std::vector<Complex> a(n), b(n);
    std::copy(signal.begin(), signal.end(), a.begin());
    std::copy(reference.begin(), reference.end(), b.begin());
    fft(a, false);
    fft(b, false);
    for (size_t i = 0; i < n; ++i)
        a[i] *= std::conj(b[i]);
    fft(a, true);
    Match best;
    double peak = -1e300;
    for (size_t lag = 0; lag + reference.size() <= signal.size(); ++lag) {
        if (a[lag].real() > peak) {
            peak = a[lag].real();
            best.lag = qsizetype(lag);
        }
    }
    if (best.lag < 0)
        return best;
    double dot = 0, es = 0, er = 0;
    for (size_t i = 0; i < reference.size(); ++i) {
        const double s = signal[size_t(best.lag) + i], r = reference[i];
        dot += s * r;
        es += s * s;
        er += r * r;
    }
    best.coefficient = dot / std::sqrt(es * er + 1e-30);
    return best;
}

std::vector<float> playedSpan(const QString& path, const std::vector<float>& decoded, double from,
                              double length, float rate)
{
    if (rate == 1.0f)
        return {decoded.begin() + qsizetype(from * kCaptureRate),
                decoded.begin() + qsizetype((from + length) * kCaptureRate)};
    PlayerTest::ManualPlayer offline = PlayerTest::openManual(path);
    offline.player->setEnableRate(true);
    offline.player->setRate(rate);
    offline.player->setCurrentTime(from, from + length);
    offline.player->play();
    // A few frames short of the span: its last frame is where the bound
    // rounds, and the player gives nothing past it.
    return offline.take(qsizetype(length / double(rate) * kCaptureRate) - 100);
}

void runEventsFor(int ms)
{
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        TestSupport::processEvents();
}

std::vector<Sound> soundRuns(const std::vector<float>& capture)
{
    std::vector<Sound> runs;
    const qsizetype minGap = qsizetype(0.001 * kCaptureRate);
    qsizetype i = 0;
    const auto n = qsizetype(capture.size());
    while (i < n) {
        while (i < n && capture[size_t(i)] == 0.0f)
            ++i;
        if (i >= n)
            break;
        const qsizetype begin = i;
        qsizetype end = i;
        while (i < n) {
            if (capture[size_t(i)] != 0.0f) {
                end = ++i;
                continue;
            }
            qsizetype j = i;
            while (j < n && capture[size_t(j)] == 0.0f)
                ++j;
            if (j - i > minGap || j >= n)
                break;
            i = j;
        }
        i = std::max(i, end);
        runs.push_back({double(begin) / kCaptureRate, double(end) / kCaptureRate});
    }
    return runs;
}

void Take::measure(const std::vector<float>& reference, double expected)
{
    const Match match = locate(capture, reference);
    lagSeconds = double(match.lag) / kCaptureRate;
    coefficient = match.coefficient;
    // Everything the engine plays is above digital silence (the file has a
    // faint noise floor), so sound starts and ends where playback did.
    qsizetype first = 0, last = qsizetype(capture.size()) - 1;
    while (first < last && capture[size_t(first)] == 0.0f)
        ++first;
    while (last > first && capture[size_t(last)] == 0.0f)
        --last;
    firstSound = double(first) / kCaptureRate;
    lastSound = double(last) / kCaptureRate;
    heard = lastSound - lagSeconds;
    m_expected = expected;
}
bool Take::clean() const
{
    return !disturbed() && coefficient > 0.98 && std::fabs(firstSound - lagSeconds) <= 0.002 &&
           std::fabs(heard - m_expected) <= kHeardTolerance;
}

Take record(PulseServer& pulse, AudioPlayer& player, double seconds,
            const std::function<void()>& play, const std::function<bool()>& over)
{
    Take take;
    const int shortReads = player.shortReads();
    const int underruns = pulse.playbackUnderruns();
    if (!pulse.startRecording(&take.error))
        return take;
    runEventsFor(300);
    play();
    QElapsedTimer waited;
    waited.start();
    while (!over() && waited.elapsed() < qint64(seconds * 1000) + 5000)
        TestSupport::processEvents();
    runEventsFor(700); // the device plays out what it holds, the recorder takes it
    take.capture = pulse.stopRecording();
    take.starved = player.shortReads() - shortReads;
    take.sinkUnderruns = pulse.playbackUnderruns() - underruns;
    if (!over())
        take.error = QStringLiteral("the segment never ended");
    else if (take.capture.size() < size_t(seconds * kCaptureRate))
        take.error = QStringLiteral("the recording is shorter than the segment");
    return take;
}

} // namespace RealSoundSupport
