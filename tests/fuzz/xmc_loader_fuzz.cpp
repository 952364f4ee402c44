// The catalog loader over texts: any bytes are an input, once as they stand and once as
// the content of a catalog. Includes are cut out, as they would read the disk.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include <quor/i18n/xmc_file_loader.hpp>

#include "reference/xmc_documents.hpp"
#include "support/xmc_text.hpp"

namespace {

using QUOR_2_9::strings::ustring8;
using quor_test::xmc_loader;
using load_error = xmc_loader::load_error;

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

bool starts_with(std::string const &text, std::string const &start) {
	return text.compare(0, start.size(), start) == 0;
}

bool ends_with(std::string const &text, std::string const &end) {
	return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void check_error(load_error const &error) {
	check(error.type() >= xmc_loader::load_none && error.type() <= xmc_loader::load_unexpected, "type");
	check(starts_with(error.message(), "xmc_file_loader::load_error - "), "the message begins with the prefix");
	bool const plain = error.type() == xmc_loader::load_none || error.type() == xmc_loader::load_no_catalog;
	check(plain || ends_with(error.message(), "\n in file: \"f\""), "the message ends with the file");
}

void check_catalogs(xmc_loader &loader) {
	xmc_loader::catalog_map catalogs;
	auto const stored = loader.combine_data(catalogs);
	std::size_t count = 0;
	for (auto const &[name, catalog] : catalogs) {
		check(catalog->name() == name, "a catalog has the name it is found by");
		count += catalog->size();
		for (auto const &[key, message] : *catalog) {
			check(message.name() == key, "a message has the name it is found by");
			check(loader.is_lang_id_good(message._orginal_locale()), "a message has an accepted language");
		}
	}
	check(stored == count, "all messages are stored in an empty set");
	check(loader.combine_data(catalogs) == count, "the same texts replace each other");
}

void run(std::string const &text, char const *language) {
	xmc_loader loader;
	loader.handle_language(language);
	load_error const error = loader.parse_string(ustring8(text), "f");
	check_error(error);
	check_catalogs(loader);

	reference::xmc_documents expected({".", "en", "de", "de_AT"});
	reference::xmc_fault const fault = expected.read(text, "f");
	check(error.type() == fault.type && error.message() == fault.text, "the fault is the reference's");

	// The whole once more: the first texts stay.
	std::string const content = quor_test::xmc_text(loader);
	loader.parse_string(ustring8(text), "f");
	check(quor_test::xmc_text(loader) == content, "the same file again changes nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	std::string text(data, data + size);
	for (std::size_t at = text.find("<include"); at != std::string::npos; at = text.find("<include", at)) {
		text.erase(at, 8);
		at = at < 8 ? 0 : at - 8;
	}
	run(text, "de_AT");
	run("<?xml?><xmc version='1.0'><catalog lang='.'>" + text + "</catalog></xmc>", "de-AT");
	return 0;
}
