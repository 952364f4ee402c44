#ifndef QUOR_TYPES_COLOR_HPP
#define QUOR_TYPES_COLOR_HPP

/// @file
/// A colour of 32 bits: red, green, blue and alpha.
///
///     quor::types::color_t paper(255, 250, 240);       // opaque
///     paper.as_rgb();                                   // 0xF0FAFF
///     paper.alpha(128);
///
/// The bytes lie in memory in the order red, green, blue, alpha; as a number, red is the
/// low byte and alpha the high one: 0xAABBGGRR.
///
/// @since 2.9

#include <type_traits>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::types {

/// A colour. Exactly four bytes, aligned as a 32-bit number, which can be moved and read
/// as plain memory.
///
/// Alpha 255 is opaque by convention; nothing here mixes colours. Nothing throws.
/// Thread-safety: plain value.
/// @since 2.9
class alignas(int32) color_t {
public:
	/// All four bytes 0, alpha too. @since 2.9
	constexpr color_t() noexcept = default;
	/// The same four bytes. @since 2.9
	constexpr color_t(color_t const &) noexcept = default;
	/// The colour of a number 0xAABBGGRR, its alpha too. @since 2.9
	constexpr color_t(int32 value) noexcept
	    : m_red(byte(value, 0)), m_green(byte(value, 8)), m_blue(byte(value, 16)), m_alpha(byte(value, 24)) {}
	/// An opaque colour: alpha is 255. @since 2.9
	constexpr color_t(unsigned char red, unsigned char green, unsigned char blue) noexcept
	    : color_t(red, green, blue, opaque) {}
	/// A colour of four parts. @since 2.9
	constexpr color_t(unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha) noexcept
	    : m_red(red), m_green(green), m_blue(blue), m_alpha(alpha) {}
	~color_t() = default;

	/// The colour of a number 0xAABBGGRR: alpha is taken from it, as by `rgba`. @since 2.9
	static constexpr color_t rgb(int32 const &value) noexcept { return color_t(value); }
	/// An opaque colour: alpha is 255. @since 2.9
	static constexpr color_t rgb(unsigned char red, unsigned char green, unsigned char blue) noexcept {
		return color_t(red, green, blue);
	}
	/// The colour of a number 0xAABBGGRR. @since 2.9
	static constexpr color_t rgba(int32 const &value) noexcept { return color_t(value); }
	/// A colour of four parts. @since 2.9
	static constexpr color_t rgba(unsigned char red, unsigned char green, unsigned char blue,
	                              unsigned char alpha) noexcept {
		return color_t(red, green, blue, alpha);
	}

	/// Becomes the same colour. @since 2.9
	constexpr color_t const &assign(color_t const &other) noexcept { return *this = other; }
	/// Becomes the colour of a number 0xAABBGGRR. @since 2.9
	constexpr color_t const &assign(int32 value) noexcept { return *this = color_t(value); }
	/// Becomes the same colour. @since 2.9
	constexpr color_t &operator=(color_t const &other) noexcept = default;
	/// Becomes the colour of a number 0xAABBGGRR. @since 2.9
	constexpr color_t const &operator=(int32 value) noexcept { return *this = color_t(value); }

	/// Whether all four bytes are equal. @since 2.9
	constexpr bool equal(color_t const &other) const noexcept { return as_int32() == other.as_int32(); }
	/// Whether all four bytes are equal. @since 2.9
	constexpr bool operator==(color_t const &other) const noexcept { return equal(other); }
	/// Whether a byte differs. @since 2.9
	constexpr bool operator!=(color_t const &other) const noexcept { return !equal(other); }

	/// The red part. @since 2.9
	constexpr unsigned char red() const noexcept { return m_red; }
	/// The green part. @since 2.9
	constexpr unsigned char green() const noexcept { return m_green; }
	/// The blue part. @since 2.9
	constexpr unsigned char blue() const noexcept { return m_blue; }
	/// The alpha part. @since 2.9
	constexpr unsigned char alpha() const noexcept { return m_alpha; }

	/// Sets the red part and returns it. @since 2.9
	constexpr unsigned char red(unsigned char value) noexcept { return m_red = value; }
	/// Sets the green part and returns it. @since 2.9
	constexpr unsigned char green(unsigned char value) noexcept { return m_green = value; }
	/// Sets the blue part and returns it. @since 2.9
	constexpr unsigned char blue(unsigned char value) noexcept { return m_blue = value; }
	/// Sets the alpha part and returns it. @since 2.9
	constexpr unsigned char alpha(unsigned char value) noexcept { return m_alpha = value; }

	/// The four bytes as the number 0xAABBGGRR; negative where alpha is 128 or more. @since 2.9
	constexpr int32 as_int32() const noexcept { return static_cast<int32>(bits()); }
	/// The number 0x00BBGGRR, without alpha. @since 2.9
	constexpr int32 as_rgb() const noexcept { return static_cast<int32>(bits() & 0xFFFFFF); }

private:
	static constexpr unsigned char opaque = 255;

	static constexpr unsigned char byte(int32 value, int shift) noexcept {
		return static_cast<unsigned char>((static_cast<uint32>(value) >> shift) & 0xFF);
	}
	constexpr uint32 bits() const noexcept {
		return m_red | static_cast<uint32>(m_green) << 8 | static_cast<uint32>(m_blue) << 16 |
		       static_cast<uint32>(m_alpha) << 24;
	}

	unsigned char m_red = 0;
	unsigned char m_green = 0;
	unsigned char m_blue = 0;
	unsigned char m_alpha = 0;
};

static_assert(sizeof(color_t) == 4 && std::is_trivially_copyable_v<color_t>);

} // namespace QUOR_2_9::types

#endif
