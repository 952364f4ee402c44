// What only large files show.
//
//   large_files memory DIRECTORY MEGABYTES    a file of that size takes the memory of one of 1 MB
//   large_files offsets DIRECTORY             a file of more than 4 GiB, most of it a hole
//
// Not a test program of the framework, as the size of the process counts.

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <quor/xml_stream/xml_stream_parser.hpp>

namespace {

using quor_parser = QUOR_2_9::xml_stream::xml_stream_parser;

std::string const header = "<?xml version=\"1.0\" encoding=\"utf-8\"                ?>";

void check(bool holds, std::string const &what) {
	if (!holds) {
		std::cerr << "large_files: " << what << '\n';
		std::exit(EXIT_FAILURE);
	}
}

class scratch_file {
public:
	explicit scratch_file(std::string const &directory)
	    : path(directory + "/large_file_" + std::to_string(::getpid()) + ".xml") {}
	scratch_file(scratch_file const &) = delete;
	scratch_file &operator=(scratch_file const &) = delete;
	~scratch_file() { std::filesystem::remove(path); }

	std::string const path;
};

void write_records(std::string const &path, std::uint64_t bytes) {
	std::ofstream file(path, std::ios::binary);
	file << header << "<log>\n";
	std::string piece;
	for (std::uint64_t written = 0; written < bytes; written += piece.size()) {
		piece.clear();
		for (std::uint64_t i = 0; i != 500; ++i) {
			piece += "<entry level='info' time='" + std::to_string(written + i) +
			         "'><text>a text that is longer than a short string</text><peer name='a'/></entry>\n";
		}
		file << piece;
	}
	file << "</log>\n";
}

/// Streams the file in a process of its own; its size at most, in KiB.
long peak_of_parsing(std::string const &path) {
	pid_t const child = ::fork();
	if (child == 0) {
		quor_parser parser(path, 1);
		std::uint64_t nodes = 0;
		while (parser.parse() == quor_parser::status_ok) {
			for (; !parser.node_queue_empty(); parser.node_queue_pop()) {
				++nodes;
			}
		}
		::_exit(parser.error() == quor_parser::status_end_of_document && nodes > 1000 ? 0 : 1);
	}
	int status = 0;
	rusage used = {};
	check(child != -1 && ::wait4(child, &status, 0, &used) == child && status == 0, "the file isn't read to its end");
	return used.ru_maxrss;
}

void compare_memory(std::string const &directory, std::uint64_t megabytes) {
	scratch_file const file(directory);
	write_records(file.path, 1000000);
	long const small = peak_of_parsing(file.path);
	write_records(file.path, megabytes * 1000000);
	long const large = peak_of_parsing(file.path);
	std::cout << "1 MB: " << small << " KiB, " << megabytes << " MB: " << large << " KiB\n";
	check(large <= small + 1024, "the larger file takes more memory");
}

void check_offsets(std::string const &directory) {
	scratch_file const file(directory);
	constexpr std::uint64_t hole = (std::uint64_t(1) << 32) + 100000;
	std::string const before = header + "<r><e b/>";
	std::string const behind = "<e n='1'/></r>";
	std::ofstream(file.path, std::ios::binary) << before;
	std::filesystem::resize_file(file.path, before.size() + hole);
	std::ofstream(file.path, std::ios::binary | std::ios::app) << behind;
	quor_parser parser(file.path, 1);
	check(parser.parse() == quor_parser::status_expected_equals, "the fault");
	check(parser.file_length() == static_cast<unsigned int>(before.size() + hole + behind.size()), "the length");
	check(parser.recover({"e"}) == quor_parser::status_ok, "the recovery");
	check(parser.parse_offset() == static_cast<unsigned int>(before.size() + hole), "the offset behind the recovery");
	check(parser.parse() == quor_parser::status_end_of_document, "the end");
	check(parser.parse_offset() == static_cast<unsigned int>(before.size() + hole + behind.size() - 1),
	      "the last offset");
	check(parser.node_queue_pop().attribs().front().second == "1", "the record");
	std::cout << "offsets beyond 4 GiB hold\n";
}

} // namespace

int main(int argc, char **argv) {
	std::string const what = argc > 2 ? argv[1] : "";
	if (what == "memory" && argc == 4) {
		compare_memory(argv[2], std::stoull(argv[3]));
	} else if (what == "offsets" && argc == 3) {
		check_offsets(argv[2]);
	} else {
		std::cerr << "usage: large_files memory DIRECTORY MEGABYTES | offsets DIRECTORY\n";
		return 2;
	}
	return 0;
}
