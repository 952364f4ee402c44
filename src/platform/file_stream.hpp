#ifndef QUOR_PLATFORM_FILE_STREAM_HPP
#define QUOR_PLATFORM_FILE_STREAM_HPP

#include <cstddef>
#include <cstdint>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// A regular file that is open for reading raw bytes, shared with everybody. Opening
/// never waits: directories, pipes and devices don't open.
class input_file {
public:
	explicit input_file(types::wide_string const &path);
	input_file(input_file const &) = delete;
	input_file &operator=(input_file const &) = delete;
	~input_file();

	bool is_open() const noexcept { return m_handle != closed; }
	/// The position of the file's end, or -1 where the system gives none. Reading
	/// starts at the front whether or not this was asked.
	std::int64_t size() noexcept;
	/// Reads the next `count` bytes; the result is less at the end of the file or at
	/// a fault.
	std::size_t read(char *to, std::size_t count) noexcept;
	/// The same from a position on, wherever `read` stands. Don't mix the two.
	std::size_t read_at(std::uint64_t position, char *to, std::size_t count) noexcept;

private:
	static constexpr std::intptr_t closed = -1;
	std::intptr_t m_handle = closed;
};

/// A file that is open for writing raw bytes, created or emptied by the opening, shared
/// with everybody. Opening never waits; directories and pipes don't open.
class output_file {
public:
	explicit output_file(types::wide_string const &path);
	output_file(output_file const &) = delete;
	output_file &operator=(output_file const &) = delete;
	~output_file();

	bool is_open() const noexcept { return m_handle != closed; }
	/// Writes `count` bytes; the result is less at a fault.
	std::size_t write(char const *from, std::size_t count) noexcept;

private:
	static constexpr std::intptr_t closed = -1;
	std::intptr_t m_handle = closed;
};

} // namespace QUOR_2_9::platform

#endif
