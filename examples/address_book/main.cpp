// Stores an address book in three formats, shows the bytes, and reads the book back.
//
//   address_book [FORMAT]
//       the book of this program as bytes, and whether it is the same when it is read back;
//       FORMAT is binary, text or labeled, without one all of them
//   address_book FORMAT store FILE
//       writes that book to a file
//   address_book FORMAT load FILE
//       lists the book of a file, which may come from an older or newer program
//
// Exit status: 0 when all went well, 1 when a file can't be read or written or holds no
// address book, 2 when the command line is wrong.

#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "bytes.hpp"
#include "formats.hpp"
#include "records.hpp"

namespace address_book {
namespace {

using quor::serialization::labeled_text_buffer;
using quor::serialization::serialize_binary_buf;
using quor::serialization::serialize_text_buf;

constexpr int exit_failed = 1;
constexpr int exit_usage = 2;

char const usage[] = "usage: address_book [FORMAT]\n"
                     "       address_book FORMAT store FILE\n"
                     "       address_book FORMAT load FILE\n"
                     "\n"
                     "Shows the address book of this program as bytes and reads it back, writes it to a\n"
                     "file, or lists the one of a file. FORMAT is binary, text or labeled.\n";

// --- the formats ------------------------------------------------------------------------

struct format {
	char const *name;
	std::string (*store)(book const &);
	book (*load)(std::string const &);
	void (*print)(std::string const &);
};

template <class Buffer>
std::string store_as(book const &from) {
	Buffer out;
	store(from, out);
	return out.as_str();
}

template <class Buffer>
book load_as(std::string const &bytes) {
	return load_book(Buffer(bytes));
}

format const formats[] = {
    {"binary", store_as<serialize_binary_buf>, load_as<serialize_binary_buf>, print_dump},
    {"text", store_as<serialize_text_buf>, load_as<serialize_text_buf>, print_fields},
    {"labeled", store_as<labeled_text_buffer>, load_as<labeled_text_buffer>, print_fields},
};

format const *find_format(std::string const &name) {
	for (format const &each : formats) {
		if (name == each.name) {
			return &each;
		}
	}
	return nullptr;
}

// --- what the program does --------------------------------------------------------------

// Books are the same if their binary bytes are, since that format loses nothing.
bool same(book const &left, book const &right) {
	return store_as<serialize_binary_buf>(left) == store_as<serialize_binary_buf>(right);
}

int show(format const &as) {
	std::string const bytes = as.store(sample());
	std::cout << as.name << ", " << bytes.size() << " bytes:\n";
	as.print(bytes);
	bool const kept = same(sample(), as.load(bytes));
	std::cout << (kept ? "read back: the same book\n" : "read back: another book\n");
	return kept ? 0 : exit_failed;
}

int show_all() {
	int status = 0;
	for (format const &each : formats) {
		if (&each != formats) {
			std::cout << '\n';
		}
		status = show(each) == 0 ? status : exit_failed;
	}
	return status;
}

int fail(std::string const &file, std::string const &why) {
	std::cerr << "address_book: \"" << file << "\" " << why << '\n';
	return exit_failed;
}

int store_file(format const &as, std::string const &name) {
	std::ofstream file(name, std::ios::binary);
	file << as.store(sample());
	file.close();
	return file ? 0 : fail(name, "can't be written");
}

int load_file(format const &as, std::string const &name) {
	std::ifstream file(name, std::ios::binary);
	if (!file) {
		return fail(name, "can't be read");
	}
	try {
		list(as.load({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()}));
	} catch (std::runtime_error const &error) {
		return fail(name, error.what());
	}
	return 0;
}

int run(std::vector<std::string> const &arguments) {
	if (arguments.empty()) {
		return show_all();
	}
	format const *const as = find_format(arguments[0]);
	if (as != nullptr && arguments.size() == 1) {
		return show(*as);
	}
	if (as != nullptr && arguments.size() == 3 && arguments[1] == "store") {
		return store_file(*as, arguments[2]);
	}
	if (as != nullptr && arguments.size() == 3 && arguments[1] == "load") {
		return load_file(*as, arguments[2]);
	}
	std::cerr << usage;
	return exit_usage;
}

} // namespace
} // namespace address_book

int main(int argc, char **argv) {
	return address_book::run(std::vector<std::string>(argv + 1, argv + argc));
}
