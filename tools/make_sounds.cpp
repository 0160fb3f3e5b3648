// Writes the client's alarm sounds: make-sounds <folder>. 16-bit PCM, mono.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

constexpr int g_nSampleRate = 22050;
constexpr double g_dPi = 3.14159265358979323846;
constexpr double g_dVolume = 0.6;   // of full scale, with every partial at its height
constexpr double g_dAttack = 0.008; // seconds

struct Tone
{
    double dBegin;     // seconds
    double dLength;    // seconds
    double dFrequency; // Hz, at the beginning
    double dGlide;     // the frequency at the end, as a multiple of the one at the beginning
};

enum class Voice
{
    Bell,  // partials that are not quite in tune, fading out
    Soft,  // nearly a sine, fading out
    Buzzer // many partials, held: what must not be overheard
};

struct Sound
{
    const char* pszFile;
    Voice eVoice;
    double dPeriod; // seconds from one repetition of the tones to the next
    int nRepeats;
    std::vector<Tone> listTones;
};

const std::vector<Sound> g_listSounds = {
    {"system.wav", Voice::Soft, 0, 1, {{0, 0.35, 523.25, 1}, {0.18, 0.6, 659.25, 1}}},
    {"device.wav", Voice::Soft, 0, 1, {{0, 0.3, 659.25, 1}, {0.2, 0.3, 523.25, 1}, {0.4, 0.7, 392, 1}}},
    {"video.wav", Voice::Bell, 0, 1, {{0, 0.5, 784, 1}, {0.25, 0.9, 587.33, 1}}},
    {"input.wav", Voice::Bell, 0.5, 3, {{0, 0.45, 880, 1}}},
    {"door.wav", Voice::Bell, 0, 1, {{0, 0.8, 659.25, 1}, {0.45, 1.1, 523.25, 1}}},
    {"service.wav", Voice::Soft, 0, 1, {{0, 0.25, 440, 1}, {0.25, 0.25, 440, 1}, {0.5, 0.7, 349.23, 1}}},
    {"analysis.wav", Voice::Bell, 0.7, 2, {{0, 0.3, 698.46, 1}, {0.12, 0.3, 880, 1}, {0.24, 0.5, 1046.5, 1}}},
    {"face.wav", Voice::Bell, 0, 1, {{0, 0.3, 987.77, 1}, {0.15, 0.3, 1174.66, 1}, {0.3, 0.9, 1567.98, 1}}},
    {"vehicle.wav", Voice::Buzzer, 0.45, 2, {{0, 0.3, 370, 1}, {0, 0.3, 466.16, 1}}},
    {"perimeter.wav", Voice::Buzzer, 0.5, 4, {{0, 0.22, 880, 1}, {0.25, 0.22, 698.46, 1}}},
    {"thermal.wav", Voice::Buzzer, 0.6, 4, {{0, 0.5, 600, 1.6}}},
    {"storage.wav", Voice::Soft, 0.35, 3, {{0, 0.3, 493.88, 0.94}}},
    {"emergency.wav", Voice::Buzzer, 0.7, 4, {{0, 0.35, 650, 1.7}, {0.35, 0.35, 1105, 0.588}}},
};

/// The partials of a voice at a phase, between -1 and 1.
double Partials(Voice eVoice, double dPhase)
{
    switch (eVoice)
    {
    case Voice::Bell:
        return (std::sin(dPhase) + 0.5 * std::sin(2.01 * dPhase) + 0.25 * std::sin(3.97 * dPhase)) / 1.75;
    case Voice::Soft:
        return (std::sin(dPhase) + 0.15 * std::sin(2 * dPhase)) / 1.15;
    case Voice::Buzzer:
    default:
        return (std::sin(dPhase) + std::sin(3 * dPhase) / 3 + std::sin(5 * dPhase) / 5) / 1.6;
    }
}

double Envelope(Voice eVoice, double dTime, double dLength)
{
    const double dRise = std::min(1.0, dTime / g_dAttack);
    const double dFall = std::min(1.0, (dLength - dTime) / g_dAttack);
    const double dFade = eVoice == Voice::Buzzer ? 1.0 : std::exp(-4 * dTime / dLength);
    return std::max(0.0, std::min(dRise, dFall)) * dFade;
}

std::vector<double> Mix(const Sound& sound)
{
    double dEnd = 0;
    for (const Tone& tone : sound.listTones)
    {
        dEnd = std::max(dEnd, tone.dBegin + tone.dLength);
    }
    dEnd += sound.dPeriod * (sound.nRepeats - 1);
    std::vector<double> listSamples(std::size_t(dEnd * g_nSampleRate) + 1, 0.0);
    for (int nRepeat = 0; nRepeat < sound.nRepeats; ++nRepeat)
    {
        for (const Tone& tone : sound.listTones)
        {
            const std::size_t nFirst = std::size_t((tone.dBegin + nRepeat * sound.dPeriod) * g_nSampleRate);
            const int nCount = int(tone.dLength * g_nSampleRate);
            double dPhase = 0;
            for (int n = 0; n < nCount; ++n)
            {
                const double dPart = double(n) / nCount;
                dPhase += 2 * g_dPi * tone.dFrequency * (1 + (tone.dGlide - 1) * dPart) / g_nSampleRate;
                const double dTime = double(n) / g_nSampleRate;
                listSamples[nFirst + std::size_t(n)] +=
                    Partials(sound.eVoice, dPhase) * Envelope(sound.eVoice, dTime, tone.dLength);
            }
        }
    }
    return listSamples;
}

void PutNumber(std::string& content, std::uint32_t nNumber, int nBytes)
{
    for (int n = 0; n < nBytes; ++n)
    {
        content += char((nNumber >> (8 * n)) & 0xff);
    }
}

std::string MakeWav(const std::vector<double>& listSamples)
{
    constexpr int nBytesPerSample = 2;
    double dPeak = 1;
    for (double dSample : listSamples)
    {
        dPeak = std::max(dPeak, std::abs(dSample)); // tones that sound together must not clip
    }
    const std::uint32_t nDataSize = std::uint32_t(listSamples.size()) * nBytesPerSample;
    std::string content = "RIFF";
    PutNumber(content, 36 + nDataSize, 4);
    content += "WAVEfmt ";
    PutNumber(content, 16, 4); // size of the format
    PutNumber(content, 1, 2);  // PCM
    PutNumber(content, 1, 2);  // channels
    PutNumber(content, g_nSampleRate, 4);
    PutNumber(content, g_nSampleRate * nBytesPerSample, 4);
    PutNumber(content, nBytesPerSample, 2);
    PutNumber(content, 8 * nBytesPerSample, 2);
    content += "data";
    PutNumber(content, nDataSize, 4);
    for (double dSample : listSamples)
    {
        PutNumber(content, std::uint32_t(std::int32_t(std::lround(dSample / dPeak * g_dVolume * 32767))), 2);
    }
    return content;
}

bool Write(const std::string& strPath, const std::string& content)
{
    std::FILE* pFile = std::fopen(strPath.c_str(), "wb");
    if (!pFile)
    {
        return false;
    }
    const bool bWritten = std::fwrite(content.data(), 1, content.size(), pFile) == content.size();
    return std::fclose(pFile) == 0 && bWritten;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2)
    {
        std::fputs("usage: make-sounds <folder>\n", stderr);
        return 2;
    }
    for (const Sound& sound : g_listSounds)
    {
        const std::string strPath = std::string(argv[1]) + "/" + sound.pszFile;
        if (!Write(strPath, MakeWav(Mix(sound))))
        {
            std::fprintf(stderr, "make-sounds: cannot write %s\n", strPath.c_str());
            return 1;
        }
    }
    return 0;
}
