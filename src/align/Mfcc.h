// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

// Mel-frequency cepstral coefficients of a mono stream fed in pieces: 25 ms
// Hamming windows every 10 ms, a 26-band mel filter bank up to 8 kHz, 13
// coefficients (the first, c0, stands for loudness). Two voices saying the
// same words give similar vectors after each stream is normalised, which is
// what the warp compares.
class Mfcc
{
public:
    static constexpr int kCoefficients = 13;

    explicit Mfcc(int sampleRate);
    ~Mfcc();
    Mfcc(const Mfcc&) = delete;
    Mfcc& operator=(const Mfcc&) = delete;

    // Appends samples; every full window becomes a frame.
    void add(const float* samples, std::size_t count);
    void add(const short* samples, std::size_t count);

    // Frames so far; frame k covers samples from k * hop().
    std::size_t frameCount() const { return m_features.size() / kCoefficients; }
    int hop() const { return m_hop; }
    // kCoefficients values per frame, frame after frame.
    const std::vector<float>& features() const { return m_features; }
    std::vector<float> takeFeatures() { return std::move(m_features); }

    // Averages each run of `factor` frames into one (a last partial run
    // included): the warp works on coarser steps than the features are made at.
    static std::vector<float> pooled(const std::vector<float>& features, int factor);
    // Gives every coefficient a mean of 0 and a variance of 1 over the stream,
    // so that a louder or brighter recording compares like the synthesis.
    static void normalise(std::vector<float>& features);

private:
    void pushSample(float x);
    void computeFrame();

    int m_window;
    int m_hop;
    int m_fftSize;
    std::vector<float> m_ring; // the last window of samples, pre-emphasised
    std::size_t m_filled = 0;  // samples in the ring
    std::size_t m_sinceFrame = 0;
    float m_previous = 0.0f;
    std::vector<float> m_hamming;
    std::vector<float> m_input;    // FFT input, zero-padded
    std::vector<float> m_spectrum; // interleaved complex output
    std::vector<float> m_power;
    struct Band
    {
        int first = 0;
        std::vector<float> weights;
    };
    std::vector<Band> m_bands;
    std::vector<float> m_dct; // kCoefficients x bands
    std::vector<float> m_logEnergies;
    std::vector<float> m_features;
    void* m_plan = nullptr; // fftwf_plan
};
