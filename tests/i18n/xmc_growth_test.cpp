// Loading grows with the file: twice the file, about twice the allocations.

#include <algorithm>
#include <iterator>
#include <new>
#include <string>

#include <gtest/gtest.h>

#include <quor/i18n/xmc_file_loader.hpp>

#include "support/allocation_counter.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::strings::ustring8;
using loader_t = quor::i18n::_private::xmc_file_loader;

std::string repeated(std::string const &piece, std::size_t count) {
	std::string text;
	for (std::size_t i = 0; i != count; ++i) {
		text += piece;
	}
	return text;
}

std::string catalog(std::string const &content) {
	return "<?xml?><xmc version='1.0'><catalog name='c' lang='.'>" + content + "</catalog></xmc>";
}

std::string message(std::string const &content) {
	return catalog("<msg name='m'>" + content + "</msg>");
}

struct shape {
	char const *name;
	std::string (*make)(std::size_t count);
};

shape const shapes[] = {
    {"messages",
     [](std::size_t n) {
	     std::string text;
	     for (std::size_t i = 0; i != n; ++i) {
		     text += "<msg name='m" + std::to_string(i) + "'>text <arg name='a' type='int'/></msg>\n";
	     }
	     return catalog(text);
     }},
    {"messages of one name", [](std::size_t n) { return catalog(repeated("<msg name='m'>text</msg>", n)); }},
    {"arguments", [](std::size_t n) { return message(repeated("<arg name='a'/> ", n)); }},
    {"arguments cut by attributes",
     [](std::size_t n) {
	     std::string text = "<arg";
	     for (std::size_t i = 0; i != n; ++i) {
		     text += " a" + std::to_string(i) + "='1'";
	     }
	     return message(text + "/>");
     }},
    {"breaks", [](std::size_t n) { return message(repeated("<br/>", n)); }},
    {"text pieces", [](std::size_t n) { return message(repeated("x  ", n)); }},
    {"comments", [](std::size_t n) { return message(repeated("<!--c-->", n)); }},
    {"a long text", [](std::size_t n) { return message(repeated("text", n)); }},
    {"a skipped catalog",
     [](std::size_t n) {
	     return "<?xml?><xmc version='1.0'><catalog lang='fr'>" + repeated("<a/>", n) + "</catalog></xmc>";
     }},
    {"catalogs",
     [](std::size_t n) {
	     return "<?xml?><xmc version='1.0'>" + repeated("<catalog name='c' lang='.'/>", n) + "</xmc>";
     }},
    {"an element that isn't known", [](std::size_t n) { return message(repeated("<b>", n) + repeated("</b>", n)); }},
    {"a name in a fault",
     [](std::size_t n) { return message(std::string("<").append(repeated("name", n)).append("/>")); }},
};

TEST(xmc_growth, parse_string_and_combine_data_are_linear) {
	constexpr std::size_t small = 4096;
	for (shape const &one : shapes) {
		SCOPED_TRACE(one.name);
		std::size_t counts[2];
		std::size_t bytes[2];
		for (std::size_t round : {0U, 1U}) {
			ustring8 const text(one.make(small << round));
			quor_test::allocation_counter const counter;
			loader_t loader;
			loader.handle_language("de");
			loader.parse_string(text, "f");
			loader_t::catalog_map catalogs;
			loader.combine_data(catalogs);
			counts[round] = counter.count();
			bytes[round] = counter.bytes();
		}
		EXPECT_LE(counts[1], counts[0] * 22 / 10 + 20);
		EXPECT_LE(bytes[1], bytes[0] * 22 / 10 + 4096);
	}
}

TEST(xmc_growth, parse_string_of_short_tags_takes_memory_in_proportion) {
	ustring8 const text("<?xml?><xmc version='1.0'><catalog lang='fr'>" + repeated("<a/>", 250000) +
	                    "</catalog></xmc>");
	quor_test::allocation_counter const counter;
	loader_t loader;
	loader.handle_language("");
	EXPECT_EQ(loader.parse_string(text, "f").type(), 0);
	EXPECT_LE(counter.bytes(), text.size() * 6);
}

TEST(xmc_growth, handle_language_long_ids_take_linear_memory) {
	for (std::string const &piece : {std::string("a_"), std::string("_"), std::string("en.")}) {
		ustring8 const id(repeated(piece, 500000));
		quor_test::allocation_counter const counter;
		loader_t loader;
		loader.handle_language(id);
		EXPECT_LE(counter.bytes(), id.size() * 4);
		ustring8 const beginning(id, 0, id.size() / 2 - 1);
		EXPECT_NE(loader.get_locale_weight(beginning), 0U);
	}
}

TEST(xmc_growth, get_locale_weight_allocates_nothing) {
	loader_t loader;
	loader.handle_language("de_AT_some_rather_long_variant");
	ustring8 const id("de-AT.some-rather.long");
	quor_test::allocation_counter const counter;
	EXPECT_EQ(loader.get_locale_weight(id), 7U);
	EXPECT_EQ(counter.count(), 0U);
}

// Whatever fails for want of memory, the loader can be used and destroyed after it.
TEST(xmc_growth, parse_string_that_runs_out_of_memory_leaves_a_usable_loader) {
	ustring8 const text(message("some text that is long enough <arg name='a' type='int'/> for a block of memory"));
	ustring8 const file("a file name that is long enough for a block of memory");
	std::size_t index = 0;
	for (bool failed = true; failed; ++index) {
		loader_t loader;
		loader.handle_language("");
		{
			quor_test::allocation_failure const failure(index);
			try {
				loader.parse_string(text, file);
			} catch (std::bad_alloc const &) {
			}
			failed = failure.happened();
		}
		EXPECT_EQ(loader.parse_string(text, file).type(), 0);
		loader_t::catalog_map catalogs;
		EXPECT_EQ(loader.combine_data(catalogs), 1U);
	}
	EXPECT_GT(index, 10U);
}

TEST(xmc_growth, files_that_are_loaded_again_and_again_take_the_memory_once) {
	loader_t::catalog_map catalogs;
	auto const load = [&catalogs](std::size_t size) {
		loader_t loader;
		loader.handle_language(".");
		ustring8 const text(catalog("<msg name='m'>" + std::string(size, 'x') + "</msg><msg name='n'>text</msg>"));
		EXPECT_EQ(loader.parse_string(text, "f").type(), loader_t::load_none);
		loader.combine_data(catalogs);
	};
	load(10);
	quor_test::allocation_counter const counter;
	std::size_t bytes = 0;
	for (std::size_t i = 0; i != 2000; ++i) {
		load(10 + i);
		bytes = std::max<std::size_t>(bytes, 10 + i);
	}
	for (std::size_t i = 0; i != 2000; ++i) {
		load(i);
	}
	EXPECT_LT(counter.live(), 100);
	quor_test::allocation_counter const later;
	catalogs["c"]->message("m");
	EXPECT_LT(later.bytes(), 4 * bytes);
	EXPECT_EQ(catalogs["c"]->message("m").begin()->data(), std::string(1999, 'x'));
}

// Whatever fails while a message is made, it can be made later.
TEST(xmc_growth, a_message_that_there_is_no_memory_for_is_made_later) {
	loader_t loader;
	loader.handle_language(".");
	loader.parse_string(ustring8(message("a text that is longer than a small string <arg name='a'/>")), "f");
	loader_t::catalog_map catalogs;
	loader.combine_data(catalogs);
	std::size_t failures = 0;
	for (bool happened = true; happened;) {
		quor::i18n::catalog_t const copy(*catalogs["c"]);
		{
			quor_test::allocation_failure const failure(failures);
			try {
				copy.message("m");
			} catch (std::bad_alloc const &) {
				++failures;
			}
			happened = failure.happened();
		}
		EXPECT_TRUE(copy.has_message("m"));
		EXPECT_EQ(copy.message("m").count(), 2U);
		EXPECT_EQ(copy.begin()->second.count(), 2U);
	}
	EXPECT_GT(failures, 1U);
}

TEST(xmc_growth, languages_that_take_turns_take_the_memory_once) {
	loader_t one;
	loader_t other;
	loader_t *const loaders[] = {&one, &other};
	char const *const languages[] = {"a language with a name that is long", "fr"};
	for (std::size_t i : {0U, 1U}) {
		loaders[i]->handle_language(languages[i]);
		loaders[i]->parse_string(ustring8(std::string("<?xml?><xmc version='1.0'><catalog name='c' lang='") +
		                                  languages[i] + "'><msg name='m'>text</msg></catalog></xmc>"),
		                         "f");
	}
	loader_t::catalog_map catalogs;
	one.combine_data(catalogs);
	other.combine_data(catalogs);
	quor_test::allocation_counter const counter;
	for (int i = 0; i != 10000; ++i) {
		EXPECT_EQ(one.combine_data(catalogs), 1U);
		EXPECT_EQ(other.combine_data(catalogs), 1U);
	}
	EXPECT_LE(counter.live(), 1);
	EXPECT_EQ(catalogs["c"]->message("m")._orginal_locale(), "fr");
}

TEST(xmc_growth, small_catalogs_take_little) {
	constexpr std::size_t many = 2000;
	std::string text = "<?xml?><xmc version='1.0'>";
	for (std::size_t i = 0; i != many; ++i) {
		text += "<catalog name='" + std::to_string(i) + "' lang='.'><msg name='m'/></catalog>";
	}
	ustring8 const file(text + "</xmc>");
	loader_t loader;
	loader.handle_language(".");
	quor_test::allocation_counter const counter;
	loader.parse_string(file, "f");
	EXPECT_LT(counter.bytes(), many * 2500);
}

TEST(xmc_growth, languages_that_there_is_no_memory_for_are_found_later) {
	loader_t loader;
	loader.handle_language("a_b_c_d");
	std::string text = "<?xml?><xmc version='1.0'>";
	for (char const *const language : {"a", "a_b", "a_b_c", "a_b_c_d"}) {
		text += std::string("<catalog name='c' lang='") + language + "'><msg name='" + language + "'/></catalog>";
	}
	ASSERT_EQ(loader.parse_string(ustring8(text + "</xmc>"), "f").type(), loader_t::load_none);
	loader_t::catalog_map catalogs;
	loader.combine_data(catalogs);
	for (std::size_t index = 0; index != 4; ++index) {
		quor::i18n::catalog_t const copy(*catalogs["c"]);
		{
			quor_test::allocation_failure const failure(index);
			EXPECT_THROW(copy.gen_lang_set(), std::bad_alloc);
		}
		EXPECT_TRUE(copy.is_language_loaded("a"));
		EXPECT_TRUE(copy.is_language_loaded("a_b_c_d"));
		EXPECT_EQ(std::distance(copy.languages_begin(), copy.languages_end()), 4);
	}
}

} // namespace
