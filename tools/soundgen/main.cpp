// Writes the five sounds the library's dialogs play, one per message type, as
// short mono wave files into the folder given on the command line:
//   qorgenlib-sounds FOLDER
// Each is a few soft notes: a sine with a little of its octave, a quick rise
// and a gentle fade, so that nothing clicks.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr int sampleRate = 22050;
constexpr double pi = 3.14159265358979323846;

struct Note
{
    double frequency; // Hz
    double start; // seconds from the start of the sound
    double length; // seconds
};

struct Sound
{
    const char *file;
    std::vector<Note> notes;
};

// The notes of each dialog type: falling for an error, rising for a question.
const std::vector<Sound> &sounds()
{
    static const std::vector<Sound> all {
        { "Critical.wav", { { 659.26, 0.0, 0.16 }, { 440.00, 0.14, 0.30 } } },
        { "Exclamation.wav", { { 783.99, 0.0, 0.12 }, { 783.99, 0.14, 0.22 } } },
        { "Information.wav", { { 1046.50, 0.0, 0.40 } } },
        { "Question.wav",
            { { 523.25, 0.0, 0.12 }, { 659.26, 0.11, 0.12 }, { 783.99, 0.22, 0.26 } } },
        { "Message.wav", { { 880.00, 0.0, 0.14 }, { 1318.51, 0.12, 0.30 } } },
    };
    return all;
}

// One note's sample at time t after its start: 8 ms rise, exponential fade.
double noteSample(const Note &note, double t)
{
    if (t < 0 || t >= note.length)
        return 0;
    const double rise = std::min(1.0, t / 0.008);
    const double fade = std::exp(-4.0 * t / note.length) * std::min(1.0, (note.length - t) / 0.01);
    const double phase = 2 * pi * note.frequency * t;
    return rise * fade * (0.8 * std::sin(phase) + 0.2 * std::sin(2 * phase));
}

std::vector<std::int16_t> samplesOf(const Sound &sound)
{
    double end = 0;
    for (const Note &note : sound.notes)
        end = std::max(end, note.start + note.length);
    std::vector<std::int16_t> samples(std::size_t(end * sampleRate) + 1);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double t = double(i) / sampleRate;
        double value = 0;
        for (const Note &note : sound.notes)
            value += noteSample(note, t - note.start);
        samples[i] = std::int16_t(std::lround(std::clamp(value, -1.0, 1.0) * 9000));
    }
    return samples;
}

void putLittleEndian(std::ofstream &out, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out.put(char((value >> (8 * i)) & 0xff));
}

bool writeWave(const std::string &path, const std::vector<std::int16_t> &samples)
{
    std::ofstream out(path, std::ios::binary);
    const std::uint32_t dataBytes = std::uint32_t(samples.size() * 2);
    out.write("RIFF", 4);
    putLittleEndian(out, 36 + dataBytes, 4);
    out.write("WAVEfmt ", 8);
    putLittleEndian(out, 16, 4); // format chunk size
    putLittleEndian(out, 1, 2); // PCM
    putLittleEndian(out, 1, 2); // mono
    putLittleEndian(out, sampleRate, 4);
    putLittleEndian(out, sampleRate * 2, 4); // bytes per second
    putLittleEndian(out, 2, 2); // bytes per frame
    putLittleEndian(out, 16, 2); // bits per sample
    out.write("data", 4);
    putLittleEndian(out, dataBytes, 4);
    for (const std::int16_t sample : samples)
        putLittleEndian(out, std::uint16_t(sample), 2);
    return bool(out);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: qorgenlib-sounds FOLDER\n");
        return 2;
    }
    for (const Sound &sound : sounds()) {
        const std::string path = std::string(argv[1]) + "/" + sound.file;
        if (!writeWave(path, samplesOf(sound))) {
            std::fprintf(stderr, "qorgenlib-sounds: cannot write %s\n", path.c_str());
            return 1;
        }
    }
    return 0;
}
