// Damages a drawing text tag by tag, which reaches deeper into the reader than damage to single bytes.
#pragma once

#include <cstddef>
#include <cstdint>

// Changes `data` of `size` bytes in place, never beyond `maximum`; gives the new size.
std::size_t mutateTags(std::uint8_t* data, std::size_t size, std::size_t maximum, unsigned seed);
