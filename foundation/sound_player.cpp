#include "foundation/sound_player.h"

#include <utility>

namespace {
SoundPlayer g_soundPlayer = nullptr;

void PlayBySystem([[maybe_unused]] char const * file, [[maybe_unused]] DWORD flags)
{
#if defined(_WIN32)
    PlaySoundA(file, nullptr, flags);
#endif
}
}  // namespace

SoundPlayer SetSoundPlayer(SoundPlayer player)
{
    return std::exchange(g_soundPlayer, player);
}

void PlaySoundFile(char const * file, DWORD flags)
{
    (g_soundPlayer ? g_soundPlayer : PlayBySystem)(file, flags);
}
