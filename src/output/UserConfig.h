#pragma once

// The RC4 key of "UserConfig.bin"; the players have the same.
inline constexpr char userConfigKey[] = "zq4mk2pw7rxv1bn8ty";
