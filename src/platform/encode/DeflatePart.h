#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

struct libdeflate_compressor;

namespace pelmira {

/// Compresses the parts of one deflate stream independently of each other: joined in their order
/// they are the stream. One object serves one thread at a time.
class DeflatePart {
public:
    enum class Position { Inner, Last };

    explicit DeflatePart(int level); ///< 1, fast, to 12
    ~DeflatePart();

    /// The compressed part; empty if there is no memory, or the machine fails.
    std::vector<std::uint8_t> compress(std::span<const std::uint8_t> bytes, Position position);

private:
    struct Free {
        void operator()(libdeflate_compressor* compressor) const;
    };
    std::unique_ptr<libdeflate_compressor, Free> _compressor;
    std::vector<std::uint8_t> _room;
};

} // namespace pelmira
