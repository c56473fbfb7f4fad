// SPDX-License-Identifier: GPL-3.0-or-later
#include "align/Mfcc.h"

#include <algorithm>
#include <cmath>
#include <fftw3.h>
#include <mutex>
#include <numbers>

namespace {

constexpr int kBands = 26;
constexpr float kLowHz = 60.0f;
constexpr float kHighHz = 8000.0f;
constexpr float kPreEmphasis = 0.97f;

// FFTW's planner is not thread-safe; executing a plan is.
std::mutex& plannerLock()
{
    static std::mutex lock;
    return lock;
}

float hzToMel(float hz)
{
    return 2595.0f * std::log10(1.0f + hz / 700.0f);
}

float melToHz(float mel)
{
    return 700.0f * (std::pow(10.0f, mel / 2595.0f) - 1.0f);
}

} // namespace

Mfcc::Mfcc(int sampleRate) : m_window(sampleRate * 25 / 1000), m_hop(sampleRate / 100), m_fftSize(1)
{
    while (m_fftSize < m_window)
        m_fftSize *= 2;
    m_ring.assign(std::size_t(m_window), 0.0f);
    m_hamming.resize(std::size_t(m_window));
    for (int i = 0; i < m_window; ++i)
        m_hamming[std::size_t(i)] = 0.54f - 0.46f * std::cos(2.0f * std::numbers::pi_v<float> *
                                                             float(i) / float(m_window - 1));
    m_input.assign(std::size_t(m_fftSize), 0.0f);
    m_spectrum.assign(std::size_t(m_fftSize + 2), 0.0f);
    const int bins = m_fftSize / 2 + 1;
    m_power.assign(std::size_t(bins), 0.0f);

    // Triangular bands evenly spaced in mel.
    const float high = std::min(kHighHz, float(sampleRate) / 2.0f);
    const float lowMel = hzToMel(kLowHz), highMel = hzToMel(high);
    std::vector<float> edges(kBands + 2);
    for (int b = 0; b < kBands + 2; ++b)
        edges[std::size_t(b)] = melToHz(lowMel + (highMel - lowMel) * float(b) / (kBands + 1)) *
                                float(m_fftSize) / float(sampleRate);
    m_bands.resize(kBands);
    for (int b = 0; b < kBands; ++b) {
        const float left = edges[std::size_t(b)], centre = edges[std::size_t(b) + 1],
                    right = edges[std::size_t(b) + 2];
        Band& band = m_bands[std::size_t(b)];
        band.first = std::max(0, int(std::ceil(left)));
        const int last = std::min(bins - 1, int(std::floor(right)));
        for (int k = band.first; k <= last; ++k) {
            const float x = float(k);
            const float w = x <= centre ? (x - left) / std::max(centre - left, 1e-6f)
                                        : (right - x) / std::max(right - centre, 1e-6f);
            band.weights.push_back(std::max(0.0f, w));
        }
    }
    m_dct.resize(std::size_t(kCoefficients * kBands));
    for (int c = 0; c < kCoefficients; ++c) {
        for (int b = 0; b < kBands; ++b)
            m_dct[std::size_t(c * kBands + b)] =
                std::cos(std::numbers::pi_v<float> * float(c) * (float(b) + 0.5f) / kBands);
    }
    m_logEnergies.resize(kBands);

    std::lock_guard guard(plannerLock());
    m_plan =
        fftwf_plan_dft_r2c_1d(m_fftSize, m_input.data(),
                              reinterpret_cast<fftwf_complex*>(m_spectrum.data()), FFTW_ESTIMATE);
}

Mfcc::~Mfcc()
{
    std::lock_guard guard(plannerLock());
    fftwf_destroy_plan(static_cast<fftwf_plan>(m_plan));
}

void Mfcc::add(const float* samples, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        pushSample(samples[i]);
}

void Mfcc::add(const short* samples, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        pushSample(float(samples[i]) * (1.0f / 32768.0f));
}

inline void Mfcc::pushSample(float x)
{
    const float emphasised = x - kPreEmphasis * m_previous;
    m_previous = x;
    m_ring[m_filled % m_ring.size()] = emphasised;
    ++m_filled;
    if (m_filled < m_ring.size())
        return;
    if (m_filled == m_ring.size() || ++m_sinceFrame == std::size_t(m_hop)) {
        m_sinceFrame = 0;
        computeFrame();
    }
}

void Mfcc::computeFrame()
{
    // The ring's oldest sample sits just after the newest.
    const std::size_t n = m_ring.size();
    const std::size_t oldest = m_filled % n;
    for (std::size_t i = 0; i < n; ++i)
        m_input[i] = m_ring[(oldest + i) % n] * m_hamming[i];
    fftwf_execute_dft_r2c(static_cast<fftwf_plan>(m_plan), m_input.data(),
                          reinterpret_cast<fftwf_complex*>(m_spectrum.data()));
    for (std::size_t k = 0; k < m_power.size(); ++k) {
        const float re = m_spectrum[2 * k], im = m_spectrum[2 * k + 1];
        m_power[k] = re * re + im * im;
    }
    for (std::size_t b = 0; b < m_bands.size(); ++b) {
        const Band& band = m_bands[b];
        float energy = 0.0f;
        for (std::size_t k = 0; k < band.weights.size(); ++k)
            energy += band.weights[k] * m_power[std::size_t(band.first) + k];
        // The floor keeps digital silence finite (about -100 dB).
        m_logEnergies[b] = std::log(energy + 1e-10f);
    }
    for (int c = 0; c < kCoefficients; ++c) {
        float sum = 0.0f;
        for (int b = 0; b < kBands; ++b)
            sum += m_dct[std::size_t(c * kBands + b)] * m_logEnergies[std::size_t(b)];
        m_features.push_back(sum);
    }
}

std::vector<float> Mfcc::pooled(const std::vector<float>& features, int factor)
{
    const std::size_t frames = features.size() / kCoefficients;
    const std::size_t out = (frames + std::size_t(factor) - 1) / std::size_t(factor);
    std::vector<float> result(out * kCoefficients, 0.0f);
    for (std::size_t o = 0; o < out; ++o) {
        const std::size_t first = o * std::size_t(factor);
        const std::size_t last = std::min(frames, first + std::size_t(factor));
        float* dst = &result[o * kCoefficients];
        for (std::size_t f = first; f < last; ++f) {
            for (int c = 0; c < kCoefficients; ++c)
                dst[c] += features[f * kCoefficients + std::size_t(c)];
        }
        for (int c = 0; c < kCoefficients; ++c)
            dst[c] /= float(last - first);
    }
    return result;
}

void Mfcc::normalise(std::vector<float>& features)
{
    const std::size_t frames = features.size() / kCoefficients;
    if (frames == 0)
        return;
    for (int c = 0; c < kCoefficients; ++c) {
        double sum = 0.0, squares = 0.0;
        for (std::size_t f = 0; f < frames; ++f) {
            const double v = features[f * kCoefficients + std::size_t(c)];
            sum += v;
            squares += v * v;
        }
        const double mean = sum / double(frames);
        const double variance = std::max(squares / double(frames) - mean * mean, 0.0);
        const float scale = variance > 1e-12 ? float(1.0 / std::sqrt(variance)) : 1.0f;
        for (std::size_t f = 0; f < frames; ++f) {
            float& v = features[f * kCoefficients + std::size_t(c)];
            v = (v - float(mean)) * scale;
        }
    }
}
