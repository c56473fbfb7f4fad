// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonitorClock.h"

#include <pulse/pulseaudio.h>

#include <cstdlib>
#include <cstring>

namespace {
constexpr uint32_t kRate = 48000;
} // namespace

struct MonitorClock::Impl
{
    pa_threaded_mainloop* loop = nullptr;
    pa_context* context = nullptr;
    pa_stream* stream = nullptr;
    std::vector<float> samples; // under the loop's lock

    ~Impl()
    {
        if (loop)
            pa_threaded_mainloop_stop(loop);
        if (stream) {
            pa_stream_disconnect(stream);
            pa_stream_unref(stream);
        }
        if (context) {
            pa_context_disconnect(context);
            pa_context_unref(context);
        }
        if (loop)
            pa_threaded_mainloop_free(loop);
    }

    static void onContextState(pa_context*, void* self)
    {
        pa_threaded_mainloop_signal(static_cast<Impl*>(self)->loop, 0);
    }
    static void onStreamState(pa_stream*, void* self)
    {
        pa_threaded_mainloop_signal(static_cast<Impl*>(self)->loop, 0);
    }
    static void onDone(pa_stream*, int, void* self)
    {
        pa_threaded_mainloop_signal(static_cast<Impl*>(self)->loop, 0);
    }

    // Runs on the loop's thread with the lock held.
    static void onRead(pa_stream* s, size_t, void* opaque)
    {
        auto* self = static_cast<Impl*>(opaque);
        const void* data = nullptr;
        size_t bytes = 0;
        while (pa_stream_readable_size(s) > 0 && pa_stream_peek(s, &data, &bytes) == 0) {
            if (bytes == 0)
                break;
            const size_t count = bytes / sizeof(int16_t);
            if (data) {
                const auto* raw = static_cast<const int16_t*>(data);
                for (size_t i = 0; i < count; ++i)
                    self->samples.push_back(raw[i] / 32768.0f);
            } else {
                // A hole in the stream keeps its length, as silence.
                self->samples.insert(self->samples.end(), count, 0.0f);
            }
            pa_stream_drop(s);
        }
    }

    bool waitFor(pa_operation* op)
    {
        if (!op)
            return false;
        while (pa_operation_get_state(op) == PA_OPERATION_RUNNING)
            pa_threaded_mainloop_wait(loop);
        pa_operation_unref(op);
        return true;
    }
};

MonitorClock::MonitorClock(std::unique_ptr<Impl> impl) : d(std::move(impl)) {}

MonitorClock::~MonitorClock() = default;

std::unique_ptr<MonitorClock> MonitorClock::start(QString* whyNot)
{
    auto d = std::make_unique<Impl>();
    d->loop = pa_threaded_mainloop_new();
    if (!d->loop || pa_threaded_mainloop_start(d->loop) < 0) {
        *whyNot = QStringLiteral("no PulseAudio main loop");
        return nullptr;
    }
    pa_threaded_mainloop_lock(d->loop);
    d->context = pa_context_new(pa_threaded_mainloop_get_api(d->loop), "kelmora-test-clock");
    pa_context_set_state_callback(d->context, &Impl::onContextState, d.get());
    const char* server = std::getenv("PULSE_SERVER");
    bool ok = pa_context_connect(d->context, server, PA_CONTEXT_NOFLAGS, nullptr) >= 0;
    while (ok) {
        const pa_context_state_t state = pa_context_get_state(d->context);
        if (state == PA_CONTEXT_READY)
            break;
        if (!PA_CONTEXT_IS_GOOD(state))
            ok = false;
        else
            pa_threaded_mainloop_wait(d->loop);
    }
    if (!ok) {
        *whyNot = QStringLiteral("cannot reach the PulseAudio server");
        pa_threaded_mainloop_unlock(d->loop);
        return nullptr;
    }
    const pa_sample_spec spec{PA_SAMPLE_S16LE, kRate, 1};
    d->stream = pa_stream_new(d->context, "kelmora-test-clock", &spec, nullptr);
    pa_stream_set_state_callback(d->stream, &Impl::onStreamState, d.get());
    pa_stream_set_read_callback(d->stream, &Impl::onRead, d.get());
    // Short fragments, so that the recording keeps up with the sink.
    pa_buffer_attr attr;
    std::memset(&attr, 0xff, sizeof attr);
    attr.fragsize = static_cast<uint32_t>(pa_usec_to_bytes(10000, &spec));
    const auto flags = static_cast<pa_stream_flags_t>(
        PA_STREAM_INTERPOLATE_TIMING | PA_STREAM_AUTO_TIMING_UPDATE | PA_STREAM_ADJUST_LATENCY |
        PA_STREAM_NOT_MONOTONIC);
    ok = pa_stream_connect_record(d->stream, "testsink.monitor", &attr, flags) >= 0;
    while (ok) {
        const pa_stream_state_t state = pa_stream_get_state(d->stream);
        if (state == PA_STREAM_READY)
            break;
        if (!PA_STREAM_IS_GOOD(state))
            ok = false;
        else
            pa_threaded_mainloop_wait(d->loop);
    }
    pa_threaded_mainloop_unlock(d->loop);
    if (!ok) {
        *whyNot = QStringLiteral("cannot record the test sink's monitor");
        return nullptr;
    }
    return std::unique_ptr<MonitorClock>(new MonitorClock(std::move(d)));
}

double MonitorClock::heardNow()
{
    pa_threaded_mainloop_lock(d->loop);
    // A fresh reading of the server's indices and the sink's latency, rather
    // than one interpolated from up to a second ago.
    pa_usec_t usec = 0;
    const bool ok = d->waitFor(pa_stream_update_timing_info(d->stream, &Impl::onDone, d.get())) &&
                    pa_stream_get_time(d->stream, &usec) == 0;
    pa_threaded_mainloop_unlock(d->loop);
    return ok ? double(usec) * kRate / 1e6 : -1.0;
}

std::vector<float> MonitorClock::stop()
{
    pa_threaded_mainloop_lock(d->loop);
    std::vector<float> samples = std::move(d->samples);
    d->samples.clear();
    pa_stream_set_read_callback(d->stream, nullptr, nullptr);
    pa_threaded_mainloop_unlock(d->loop);
    return samples;
}
