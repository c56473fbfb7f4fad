// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/DecodedBuffer.h"

#include <QString>
#include <atomic>
#include <cstdint>
#include <memory>

// What the decoder knows of the first audio stream of a file once it is open.
struct AudioStreamInfo
{
    uint32_t formatID =
        0; // four-character code of the codec: '.mp3', 'aac ', 'alac', 'flac', 'lpcm', or 0
    QString codecName;     // FFmpeg's name, for messages
    QString containerName; // FFmpeg's demuxer name, for messages
    double sampleRate = 0; // Hz, of the decoded audio (never resampled)
    int channels = 0;
    double duration = 0;            // seconds, the container's own figure (not the decoded length)
    bool durationEstimated = false; // guessed from the bit rate, not stated by the file
    int64_t bitRate = 0;            // bits per second, the stream's estimate or the container's
    double startTime = 0; // stream time stamp of the first sample, in seconds (0 when unknown)
};

// Decodes the first audio stream of a file with FFmpeg. open() probes the
// container and prepares the codec; readNext() then delivers decoded buffers
// in order until the end of the stream.
class AudioDecoder
{
public:
    enum class ReadResult
    {
        Buffer,
        EndOfStream,
        Error
    };

    AudioDecoder();
    ~AudioDecoder();
    AudioDecoder(const AudioDecoder&) = delete;
    AudioDecoder& operator=(const AudioDecoder&) = delete;

    // Opens the container and finds its first audio stream. False when the
    // file cannot be read as audio; errorString() says why.
    bool open(const QString& path);
    // Creates the codec for the stream found by open(). Kept apart from open()
    // so that a file whose container is readable but whose codec is not can be
    // told apart from a file that is not audio at all.
    bool openCodec();
    bool isOpen() const;

    const AudioStreamInfo& info() const;
    QString errorString() const;

    // Decodes the next buffer. On Buffer, buffer() holds it until the next call.
    // Unless told otherwise, every buffer has the stream's channel count and
    // sample rate as info() states them, and the sample format of the first:
    // a frame that differs (a stream joined from parts) is converted, so that
    // a buffer of n frames always lasts n / sampleRate seconds.
    ReadResult readNext();
    // Off: buffers come as the codec made them (for a consumer that converts
    // each frame itself).
    void setConformFrames(bool conform);
    // The sample format conformed buffers take (an AVSampleFormat), instead
    // of the first buffer's: a reader that starts mid-stream must convert to
    // what one reading from the start would have.
    void setConformFormat(int sampleFormat);
    // The codec's own sample format (an AVSampleFormat), that of the buffers
    // it delivers unless a stream changes it; -1 before openCodec().
    int codecSampleFormat() const;
    const DecodedBuffer& buffer() const;

    // Repositions the stream so that the following buffers begin at or before
    // `seconds` (stream time, as DecodedBuffer::startTime() reports it). The
    // caller drops what precedes its target; codecs that carry state from frame
    // to frame (MP3, AAC) need to start a little earlier still to run in.
    bool seek(double seconds);
    // Back to the first packet of the file, whatever its time stamps say.
    bool rewind();
    // The same, for a position in sample frames from the start of the stream
    // (DecodedBuffer::startFrame()), without the rounding of seconds.
    bool seekToFrame(int64_t frame);

    // How much earlier than a target a codec must start decoding for the
    // samples at the target to come out exactly as a reading from the start
    // gives them.
    static double runInSeconds(uint32_t formatID);

    // Makes every read of the file fail from now on, whichever thread is in
    // it: a seek that scans the file for its time stamps stops at once. For
    // an owner that is about to destroy the decoder; safe from any thread.
    void interrupt();

    // Number of undecodable packets skipped so far (a damaged stretch of a file
    // is passed over, as players do, rather than failing the whole file).
    int skippedPackets() const;

    // The container's duration of a file, in seconds, without decoding it; a
    // negative value when the file cannot be opened.
    static double containerDuration(const QString& path);

    // FFmpeg's own messages on stderr: off unless asked for, since a damaged
    // file would otherwise flood the terminal.
    static void setLibraryLogging(bool enabled);

private:
    bool seekToTimestamp(int64_t ts);

    struct Impl;
    std::unique_ptr<Impl> d;
    // Outside the state that open() replaces, so that interrupt() from another
    // thread never meets a reopening (rewind) half done.
    std::atomic<bool> m_interrupted{false};
};
