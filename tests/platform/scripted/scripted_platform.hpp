#ifndef QUOR_TESTS_PLATFORM_SCRIPTED_SCRIPTED_PLATFORM_HPP
#define QUOR_TESTS_PLATFORM_SCRIPTED_SCRIPTED_PLATFORM_HPP

// A file system in memory that fails where it is told. Paths are compared as they stand.
//
//     auto &disk = quor_test::fresh_disk();
//     disk.files[QUOR_W("a.txt")] = quor_test::scripted_file::with("content");
//     disk.files[QUOR_W("a.txt")].read_limit = 3;      // a short read

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <quor/types/widths.hpp>

namespace quor_test {

using wide_string = QUOR_2_9::types::wide_string;

struct scripted_file {
	enum kind_t { file, directory, device };

	static scripted_file with(std::string content) {
		scripted_file result;
		result.content = std::move(content);
		return result;
	}

	// A directory whose entries are given as they stand, in this order.
	static scripted_file listing(std::vector<wide_string> names, std::uint64_t index) {
		scripted_file result;
		result.kind = directory;
		result.names = std::move(names);
		result.index = index;
		return result;
	}

	static constexpr std::size_t all = static_cast<std::size_t>(-1);

	kind_t kind = file;
	std::string content;
	std::vector<wide_string> names;
	std::uint64_t index = 0;          // its identity
	bool readable = true;             // the owner's permission bit
	bool opens = true;                // whether the streams open and the listing works
	std::optional<std::int64_t> size; // what the stream says instead of the content's size
	std::size_t read_limit = all;     // bytes before reading fails
	std::size_t write_limit = all;    // bytes before writing fails
	std::size_t looks = all;          // how often it can be examined before it vanishes
};

struct scripted_disk {
	std::map<wide_string, scripted_file> files;
	bool full = false;                // no file or directory can be created
	std::size_t opened = 0;           // streams that were opened
	std::size_t closed = 0;           // and closed
	std::vector<wide_string> created; // directories that were asked for, in order
	std::vector<wide_string> moved;   // pairs of old and new path
	std::string debug_lines;
	bool slash_separates = true; // whether program paths are cut at "/" too
};

// The one disk that the platform shows; and the same after it was emptied.
scripted_disk &disk();
scripted_disk &fresh_disk();

} // namespace quor_test

#endif
