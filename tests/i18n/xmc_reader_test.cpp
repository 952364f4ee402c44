// The loader's readers: against a slow reference on random files, and one by one on
// tokens that no document gives them.

#include <gtest/gtest.h>

#include <list>

#include <quor/i18n/xmc_file_loader.hpp>
#include <quor/parser/xml_token_stream.hpp>

#include "reference/xmc_documents.hpp"
#include "support/random_xml.hpp"
#include "support/temporary_directory.hpp"
#include "support/xmc_text.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::i18n::message_t;
using quor::parser::xml_token_stream;
using quor::strings::ustring8;
using quor_test::xmc_loader;
using token = xml_token_stream::token;
using load_error = xmc_loader::load_error;

std::string const prefix = "xmc_file_loader::load_error - ";

std::string reference_text(reference::xmc_catalogs const &catalogs) {
	std::string text;
	for (auto const &[name, messages] : catalogs) {
		text += (text.empty() ? "" : " | ") + name + ":";
		bool first = true;
		for (auto const &[key, message] : messages) {
			text += (first ? " " : "; ") + key + "(" + message.locale + ")=";
			first = false;
			bool literal = false;
			for (auto const &[type, data] : message.items) {
				text += literal && type == 0 ? "#" : "";
				text += quor_test::xmc_item(type, data);
				literal = type == 0;
			}
			text += message.meta.empty() ? "" : " meta " + message.meta;
		}
	}
	return text;
}

void compare(quor_test::random_xml &random, int runs, bool change) {
	for (int i = 0; i != runs; ++i) {
		xmc_loader loader;
		loader.handle_language("de_AT");
		reference::xmc_documents expected({".", "en", "de", "de_AT"});
		for (int files = 0; files != 2; ++files) {
			std::string text = random.catalog_file();
			text = change ? random.changed(text) : text;
			if (text.find("<include") != std::string::npos) {
				continue;
			}
			SCOPED_TRACE(testing::PrintToString(text));
			reference::xmc_fault const fault = expected.read(text, "f");
			load_error const error = loader.parse_string(ustring8(text), "f");
			EXPECT_EQ(error.type(), fault.type);
			EXPECT_EQ(error.message(), fault.text);
			EXPECT_EQ(quor_test::xmc_text(loader), reference_text(expected.catalogs));
			if (testing::Test::HasFailure()) {
				return;
			}
		}
	}
}

TEST(xmc_reader, parse_string_random_files_agree_with_reference) {
	quor_test::random_xml random(31);
	compare(random, 4000, false);
}

TEST(xmc_reader, parse_string_changed_random_files_agree_with_reference) {
	quor_test::random_xml random(32);
	compare(random, 6000, true);
}

// Opens the readers to the tests.
struct probe : xmc_loader {
	probe() { handle_language("de"); }

	using xmc_loader::parse_catalog;
	using xmc_loader::parse_ignorable;
	using xmc_loader::parse_include;
	using xmc_loader::parse_message;
	using xmc_loader::parse_message_arg;
	using xmc_loader::parse_message_type;
	using xmc_loader::parse_xmc_header;
	using xmc_loader::set_message;
};

// Runs a reader over tokens written as "s:name e:name n:attribute v:value a: c:comment
// p:space t:text", and gives the fault, or the number of tokens read.
template <class Iterator, class Reader>
std::string read(std::list<token> &tokens, Reader reader) {
	probe loader;
	Iterator it = tokens.begin();
	Iterator const begin = it;
	Iterator const end = tokens.end();
	try {
		reader(loader, it, end);
	} catch (load_error const &error) {
		return std::to_string(error.type()) + error.message().substr(prefix.size());
	}
	return std::to_string(std::distance(begin, it));
}

std::list<token> tokens_of(std::string const &text) {
	std::list<token> tokens;
	for (std::size_t at = 0; at < text.size();) {
		std::size_t const stop = std::min(text.find(' ', at), text.size());
		auto const type = static_cast<token::token_type>(std::string("senvacpt").find(text[at]));
		tokens.emplace_back(type, text.substr(at + 2, stop - at - 2));
		at = stop + 1;
	}
	return tokens;
}

template <class Reader>
void expect_read(std::string const &text, std::string const &expected, Reader reader) {
	SCOPED_TRACE(text);
	std::list<token> tokens = tokens_of(text);
	EXPECT_EQ(read<xml_token_stream::iterator>(tokens, reader), expected);
	EXPECT_EQ(read<xml_token_stream::const_iterator>(tokens, reader), expected);
}

std::string const unexpected = "14Unexpected parse error happen!";

TEST(xmc_reader, parse_ignorable_steps_over_comment_space_and_text) {
	auto const reader = [](probe &loader, auto &it, auto const &end) { loader.parse_ignorable(it, end); };
	expect_read("", "0", reader);
	expect_read("c:x p:x t:x c:x", "4", reader);
	expect_read("t:x s:a", "1", reader);
	expect_read("a:", "0", reader);
	expect_read("e:x", "0", reader);
	expect_read("n:x", "0", reader);
	expect_read("v:x", "0", reader);
}

TEST(xmc_reader, parse_xmc_header_on_cut_tokens) {
	auto const reader = [](probe &loader, auto &it, auto const &end) { loader.parse_xmc_header(it, end); };
	expect_read("", "7Not XMC file, root element is not XMC but \"Value Not Defined\"", reader);
	expect_read("e:xmc", "7Not XMC file, root element is not XMC but \"xmc\"", reader);
	expect_read("s:xmc", unexpected, reader);
	expect_read("s:xmc n:version", "8XMC version \"\" is not supported", reader);
	expect_read("s:xmc n:version v:1.0", "3", reader);
	expect_read("s:xmc n:version v:1.0 a:", "4", reader);
	expect_read("s:xmc n:version v:1.1 n:more v:x", "4", reader);
	expect_read("s:xmc n:version t:1.1", "8XMC version \"1.1\" is not supported", reader);
}

TEST(xmc_reader, parse_include_on_cut_tokens) {
	auto const reader = [](probe &loader, auto &it, auto const &end) { loader.parse_include(it, end); };
	expect_read("", "6Invalid element \"\"", reader);
	expect_read("s:catalog", "6Invalid element \"catalog\"", reader);
	expect_read("e:include", "6Invalid element \"include\"", reader);
	expect_read("s:include", unexpected, reader);
	expect_read("s:include n:file", unexpected, reader);
	expect_read("s:include n:file v:none", unexpected, reader);
	expect_read("s:include c:x n:file c:x v:", unexpected, reader);
	expect_read("s:include c:x a: e:include", "3File \"\" was not found on disk", reader);
	expect_read("s:include n:file v:none a: e:include", "3File \"none\" was not found on disk", reader);
}

TEST(xmc_reader, parse_catalog_on_cut_tokens) {
	auto const reader = [](probe &loader, auto &it, auto const &end) { loader.parse_catalog(it, end); };
	std::string const in = "\n in catalog element: \"";
	expect_read("", "6Invalid element \"\"" + in + "\"", reader);
	expect_read("s:msg", "6Invalid element \"msg\"" + in + "\"", reader);
	expect_read("s:catalog", unexpected + in + "\"", reader);
	expect_read("s:catalog n:name", unexpected + in + "\"", reader);
	expect_read("s:catalog n:name v:x", unexpected + in + "x\"", reader);
	expect_read("s:catalog n:name v:x a:", "13Expected catalog end tag not found for catalog \"x\"" + in + "x\"",
	            reader);
	expect_read("s:catalog n:name v:x a: s:b e:b",
	            "13Expected catalog end tag not found for catalog \"x\"" + in + "x\"", reader);
	expect_read("s:catalog n:lang v:. a:", unexpected + in + "\"", reader);
	expect_read("s:catalog n:lang v:. a: t:x", unexpected + in + "\"", reader);
	expect_read("s:catalog n:lang v:. a: s:msg a: e:msg",
	            "13Expected catalog end tag not found for catalog \"\"" + in + "\"", reader);
	expect_read("s:catalog n:lang v:. c:x a: e:catalog t:x", "6", reader);
	expect_read("s:catalog a: s:b e:catalog t:x", "4", reader);
}

TEST(xmc_reader, parse_message_on_cut_tokens) {
	auto const reader = [](probe &loader, auto &it, auto const &end) { loader.parse_message(it, end); };
	std::string const in = "\n in message element: \"";
	expect_read("", unexpected + in + "\"", reader);
	expect_read("s:arg", unexpected + in + "\"", reader);
	expect_read("s:msg", unexpected + in + "\"", reader);
	expect_read("s:msg n:name v:x", unexpected + in + "x\"", reader);
	expect_read("s:msg n:name v:x a:", unexpected + in + "x\"", reader);
	expect_read("s:msg a: t:x", unexpected + in + "\"", reader);
	expect_read("s:msg a: s:br", "5Invalid attibute \"\"" + in + "\"", reader);
	expect_read("s:msg a: s:br a:", "9Expected BR end tag not found" + in + "\"", reader);
	expect_read("s:msg a: s:br a: e:br", unexpected + in + "\"", reader);
	expect_read("s:msg n:name v:x a: s:arg",
	            "11Expected arg (argument) end tag not found for argument \"\"" + in + "x\"", reader);
	expect_read("s:msg a: a: n:x v:y e:z t:x", "6", reader);
}

// The value alone ends a message, for a token of any kind.
TEST(xmc_reader, parse_message_ends_at_the_word_of_any_kind) {
	auto const reader = [](probe &loader, auto &it, auto const &end) { loader.parse_message(it, end); };
	for (char const type : std::string("senvacpt")) {
		expect_read("s:msg a: t:x " + std::string(1, type) + ":msg t:y", "4", reader);
		if (type != 'e') {
			expect_read("s:msg a: t:x " + std::string(1, type) + ":br s:nsg t:y",
			            type == 's' ? "5Invalid attibute \"nsg\"\n in message element: \"\""
			                        : "6Invalid element \"nsg\"\n in message element: \"\"",
			            reader);
		}
	}
}

TEST(xmc_reader, parse_message_arg_on_cut_tokens) {
	auto const reader = [](probe &loader, auto &it, auto const &end) { loader.parse_message_arg(it, end); };
	std::string const no_end = "11Expected arg (argument) end tag not found for argument \"";
	expect_read("", "6Invalid element \"\"", reader);
	expect_read("s:br", "6Invalid element \"br\"", reader);
	expect_read("e:arg", "6Invalid element \"arg\"", reader);
	expect_read("s:arg", no_end + "\"", reader);
	expect_read("s:argument n:name", no_end + "\"", reader);
	expect_read("s:arg n:name v:x", no_end + "x\"", reader);
	expect_read("s:arg n:base", no_end + "\"", reader);
	expect_read("s:arg n:name v:x a: t:x s:b", no_end + "x\"", reader);
	expect_read("s:arg n:name v:x a: e:b", unexpected, reader);
	expect_read("s:arg n:name v:x a: e:b t:x", "5", reader);
	for (char const type : std::string("snvacpt")) {
		std::string const one(1, type);
		expect_read("s:arg a: " + one + ":arg t:x", "3", reader);
		expect_read("s:arg a: " + one + ":argument t:x", "3", reader);
		expect_read("s:arg a: " + one + ":arguments e:x t:x", "4", reader);
	}
}

TEST(xmc_reader, parse_message_arg_attribute_without_value_keeps_its_place) {
	probe loader;
	std::list<token> tokens = tokens_of("s:arg n:name v:x n:a n:b v:c a: e:arg t:x");
	auto it = tokens.begin();
	auto const item = loader.parse_message_arg(it, tokens.end());
	EXPECT_EQ(item.data(), "x\1a\1\1b\1c");
	EXPECT_EQ(it->value(), "x");
}

// No document makes an empty text, but it is a text.
TEST(xmc_reader, parse_message_blank_counts_directly_behind_an_argument_only) {
	probe loader;
	for (auto const &[text, items] : {std::pair<char const *, std::size_t>("s:msg a: s:arg a: e:arg p:x e:msg", 2),
	                                  {"s:msg a: s:arg a: e:arg c:x p:x e:msg", 2},
	                                  {"s:msg a: s:arg a: e:arg t: p:x e:msg", 1},
	                                  {"s:msg a: t: p:x e:msg", 0}}) {
		SCOPED_TRACE(text);
		std::list<token> tokens = tokens_of(text);
		auto it = tokens.begin();
		message_t const message = loader.parse_message(it, tokens.end());
		EXPECT_EQ(std::distance(message.begin(), message.end()), static_cast<std::ptrdiff_t>(items));
	}
}

TEST(xmc_reader, parse_message_type_ignores_case) {
	probe const loader;
	EXPECT_EQ(loader.parse_message_type("DURATION"), quor::i18n::message_item::type_duration);
	EXPECT_EQ(loader.parse_message_type("durations"), quor::i18n::message_item::type_string);
}

TEST(xmc_reader, set_message_keeps_the_heavier_language) {
	probe loader;
	auto const set = [&loader](std::string const &lang, std::string const &text) {
		message_t message("m", {quor::i18n::message_item(ustring8(text))});
		message._orginal_locale(ustring8(lang));
		loader.set_message(message, "a");
		return quor_test::xmc_text(loader);
	};
	EXPECT_EQ(set("xx", "1"), "a: m(xx)=1");
	EXPECT_EQ(set("yy", "2"), "a: m(xx)=1");
	EXPECT_EQ(set("en", "3"), "a: m(en)=3");
	EXPECT_EQ(set(".", "4"), "a: m(en)=3");
	EXPECT_EQ(set("en", "5"), "a: m(en)=3");
	EXPECT_EQ(set("de", "6"), "a: m(de)=6");
}

TEST(xmc_reader, parse_include_by_itself_counts_each_call_anew) {
	quor_test::temporary_directory const directory;
	directory.write("a.xmc", "<?xml?><xmc version='1.0'><catalog name='c' lang='.'/></xmc>");
	probe loader;
	std::list<token> tokens = tokens_of("s:include n:file v:" + directory.path("a.xmc") + " a: e:include");
	for (quor::types::uint32 i = 0; i <= xmc_loader::max_files; ++i) {
		auto it = tokens.begin();
		ASSERT_NO_THROW(loader.parse_include(it, tokens.end())) << i;
	}
}

} // namespace
