// Labeled records: any text gives the record of a plain reader, which is written, copied, laid
// over and read again alike. An input is a text; one with a line of "---" is two, the second of
// which is laid over the first.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include <quor/serialization/labeled_text_buffer.hpp>

#include "reference/labeled_record.hpp"
#include "support/labeled_records.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::serialization::labeled_serialize_buffer;
using quor::serialization::labeled_text_buffer;
using quor_reference::labeled_record;

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

void check_same(labeled_record const &expected, labeled_serialize_buffer const &found, char const *what) {
	std::string const difference = quor_test::difference(expected, found);
	if (!difference.empty()) {
		std::cerr << "differs: " << difference << '\n';
	}
	check(difference.empty(), what);
}

void run(std::string const &text, std::string const &over) {
	labeled_record plain;
	plain.assign(text);
	labeled_text_buffer record;
	record.assign(text.data(), static_cast<int>(text.size()));
	check_same(plain, record, "the record is the reference's");
	check_same(plain, labeled_text_buffer(record), "a copy is the same");
	std::unique_ptr<labeled_serialize_buffer> const clone(record.clone());
	check_same(plain, *clone, "a clone is the same");

	labeled_text_buffer const again(record.as_str());
	labeled_record plain_again;
	plain_again.assign(plain.as_str());
	check_same(plain_again, again, "what is written is read as the reference reads it");
	if (!quor_test::hides_labels(plain)) {
		check(again.as_str() == record.as_str(), "reading and writing is stable");
	}

	labeled_record plain_over;
	plain_over.assign(over);
	record.overlay(labeled_text_buffer(over));
	plain.overlay(plain_over);
	check_same(plain, record, "an overlay is the reference's");
	record.overlay(record);
	check_same(plain, record, "laid over itself, nothing changes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	// The reference copies what is nested once for each level.
	constexpr std::size_t enough = 4096;
	std::string const input(reinterpret_cast<char const *>(data), size < enough ? size : enough);
	std::string const cut = "\n---\n";
	std::size_t const end = input.find(cut);
	if (end == std::string::npos) {
		run(input, input.substr(input.size() / 2));
	} else {
		run(input.substr(0, end), input.substr(end + cut.size()));
	}
	return 0;
}
