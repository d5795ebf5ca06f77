// Texts that the attach dialog shows in more than one place.
#pragma once

inline constexpr const wchar_t* kDrawingNotSaved =
    L"Relative path cannot be assigned.\nDrawing file should be saved.";
inline constexpr const wchar_t* kNotOnOneDisk =
    L"Relative path cannot be assigned.\nDrawing and reference files should be placed on one disk.";
