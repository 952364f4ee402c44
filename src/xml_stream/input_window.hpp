#ifndef QUOR_SRC_XML_STREAM_INPUT_WINDOW_HPP
#define QUOR_SRC_XML_STREAM_INPUT_WINDOW_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::xml_stream::detail {

/// A place in the window, with the line it is on.
struct cursor {
	char const *at = nullptr;
	types::uint32 line = 1;
};

/// The part of a file that is in memory, and the two cursors into it. The file is opened for
/// each piece alone.
///
/// What can be seen, from the committed cursor to `end`, is what the last `load` brought into
/// view, at most `capacity` bytes. More may be in memory already, or, after `promise`, less.
/// So pieces are read when the last one is used up, however often the view moves on.
class input_window {
public:
	static constexpr std::size_t capacity = 65536;

	enum class outcome { more, none, full, not_opened };

	explicit input_window(types::wide_string path);

	bool opens() const;
	/// The position of the file's end; 0 where it has none.
	std::uint64_t file_length() const;

	/// Moves the view on, so that it is as large as it can be; both cursors then stand at its
	/// front, but at the file's end and where it doesn't open stay where they are.
	outcome load();
	/// The same, but nothing is read from the file until `catch_up`.
	void promise() noexcept;
	/// Whether something was promised and isn't in memory.
	bool is_behind() const noexcept { return end == m_filled && offset_of(end) != m_promised; }
	/// Reads what was promised, as far as it is there.
	outcome catch_up();

	std::size_t remaining() const noexcept { return static_cast<std::size_t>(end - read.at); }
	bool at_end() const noexcept { return read.at == end; }
	std::string_view uncommitted() const noexcept {
		return {committed.at, static_cast<std::size_t>(end - committed.at)};
	}
	void commit() noexcept { committed = read; }
	void step_back() noexcept { read = committed; }
	/// The committed position in the file.
	std::uint64_t offset() const noexcept { return offset_of(committed.at); }

	cursor read;
	cursor committed;
	char const *end = nullptr;

private:
	std::uint64_t offset_of(char const *at) const noexcept {
		return m_position - static_cast<std::uint64_t>(m_filled - at);
	}
	outcome fill();
	void show_up_to(std::uint64_t position) noexcept;

	types::wide_string m_path;
	std::string m_buffer;
	char const *m_filled = nullptr; // behind the bytes in memory
	std::uint64_t m_position = 0;   // the same place in the file
	std::uint64_t m_promised = 0;   // in the file, where the view ends once it is read
};

} // namespace QUOR_2_9::xml_stream::detail

#endif
