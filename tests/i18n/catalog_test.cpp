#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"

namespace {

using quor::i18n::catalog_t;
using quor::i18n::message_item;
using quor::i18n::message_t;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::nil;
using quor_test::ascii_as;

message_t text_in(ustring8 const &text, ustring8 const &language) {
	message_t message(std::vector<message_item>{message_item(text)});
	message._orginal_locale(language);
	return message;
}

// The text of a message that holds nothing but text.
std::string text_of(message_t const &message) {
	std::string result;
	for (auto const &item : message) {
		result += item.data();
	}
	return result;
}

std::vector<ustring8> languages_of(catalog_t const &catalog) {
	return {catalog.languages_begin(), catalog.languages_end()};
}

// What a static initialiser of a client sees.
bool const nil_is_there_early =
    catalog_t::m_nil_message == nil && &catalog_t().message("x") == &catalog_t::m_nil_message;

TEST(catalog, nil_message_is_there_for_static_initialisers) {
	EXPECT_TRUE(nil_is_there_early);
}

TEST(catalog, default_is_nil_and_anything_in_it_is_not) {
	catalog_t catalog;
	EXPECT_TRUE(catalog == nil);
	EXPECT_FALSE(catalog != nil);
	EXPECT_TRUE(catalog.equal(nil));
	EXPECT_EQ(catalog.size(), 0U);
	EXPECT_EQ(catalog.name(), "");
	EXPECT_TRUE(catalog.begin() == catalog.end());

	catalog._name("app");
	EXPECT_FALSE(catalog == nil);
	EXPECT_TRUE(catalog != nil);
	EXPECT_FALSE(catalog.equal(nil));
	EXPECT_EQ(catalog.name(), "app");

	catalog_t unnamed;
	unnamed.message("key", message_t());
	EXPECT_FALSE(unnamed == nil);
}

TEST(catalog, three_arguments_take_name_and_messages_and_no_languages) {
	std::map<ustring8, message_t> const messages{{"k", text_in("text", "de")}};
	catalog_t const catalog("app", {"fr", "ja"}, messages);
	EXPECT_EQ(catalog.name(), "app");
	EXPECT_EQ(catalog.size(), 1U);
	EXPECT_EQ(text_of(catalog.message("k")), "text");
	EXPECT_EQ(languages_of(catalog), std::vector<ustring8>{"de"});
	EXPECT_FALSE(catalog.is_language_loaded("fr"));
	EXPECT_TRUE(catalog_t("", {"fr"}, {}) == nil);
}

TEST(catalog, copy_is_deep_and_held_by_nobody) {
	catalog_t catalog("app", {}, {{"k", text_in("text", "de")}});
	catalog.inc_pointer_ref();
	catalog.inc_pointer_ref();
	EXPECT_TRUE(catalog.is_language_loaded("de"));
	catalog_t const copy(catalog);
	EXPECT_EQ(copy.get_ref_count(), 0U);
	EXPECT_FALSE(copy.is_created_dynamic());
	EXPECT_EQ(catalog.get_ref_count(), 2U);
	catalog.message("k", text_in("other", "fr"));
	EXPECT_EQ(text_of(copy.message("k")), "text");
	EXPECT_EQ(languages_of(copy), std::vector<ustring8>{"de"});
	EXPECT_EQ(copy.name(), "app");
}

TEST(catalog, assignment_takes_the_contents_and_keeps_the_count) {
	catalog_t const source("app", {}, {{"k", text_in("text", "de")}});
	catalog_t by_operator("old", {}, {{"o", text_in("old", "en")}});
	catalog_t by_name(by_operator);
	EXPECT_TRUE(by_operator.is_language_loaded("en"));
	by_operator.inc_pointer_ref();
	by_operator = source;
	by_name.assign(source);
	for (catalog_t const *const target : {&by_operator, &by_name}) {
		EXPECT_EQ(target->name(), "app");
		EXPECT_EQ(target->size(), 1U);
		EXPECT_FALSE(target->has_message("o"));
		EXPECT_EQ(text_of(target->message("k")), "text");
		EXPECT_EQ(languages_of(*target), std::vector<ustring8>{"de"});
	}
	EXPECT_EQ(by_operator.get_ref_count(), 1U);
	EXPECT_EQ(by_name.get_ref_count(), 0U);
	EXPECT_FALSE(by_operator.is_created_dynamic());
}

TEST(catalog, mark_of_a_shared_catalog_stays_its_own) {
	quor::memory::pointers::shared_pointer<catalog_t> const shared(
	    quor::generic::abilities::create_dynamic<catalog_t>());
	shared->_name("shared");
	EXPECT_TRUE(shared->is_created_dynamic());
	catalog_t const copy(*shared);
	EXPECT_FALSE(copy.is_created_dynamic());
	EXPECT_EQ(copy.get_ref_count(), 0U);
	EXPECT_EQ(copy.name(), "shared");
	catalog_t assigned;
	assigned = *shared;
	EXPECT_FALSE(assigned.is_created_dynamic());
	*shared = catalog_t("other", {}, {});
	*shared = nil;
	EXPECT_TRUE(shared->is_created_dynamic());
	EXPECT_EQ(shared->get_ref_count(), 1U);
	EXPECT_TRUE(*shared == nil);
}

TEST(catalog, assignment_of_itself_changes_nothing) {
	catalog_t catalog("app", {}, {{"k", text_in("text", "de")}});
	auto const *const before = &catalog.message("k");
	auto const &same = catalog;
	catalog = same;
	catalog.assign(same);
	EXPECT_EQ(catalog.name(), "app");
	EXPECT_EQ(&catalog.message("k"), before);
}

TEST(catalog, assignment_of_nil_empties) {
	catalog_t first("app", {}, {{"k", text_in("text", "de")}});
	catalog_t second(first);
	EXPECT_TRUE(first.is_language_loaded("de"));
	first = nil;
	second.assign(nil);
	EXPECT_TRUE(first == nil);
	EXPECT_TRUE(second == nil);
	EXPECT_FALSE(first.is_language_loaded("de"));
}

TEST(catalog, message_that_is_missing_is_the_nil_message) {
	catalog_t const catalog("app", {}, {{"k", text_in("text", "de")}});
	for (char const *key : {"", "K", "k ", "kk"}) {
		SCOPED_TRACE(key);
		EXPECT_EQ(&catalog.message(key), &catalog_t::m_nil_message);
		EXPECT_TRUE(catalog.message(key) == nil);
		EXPECT_FALSE(catalog.has_message(key));
	}
}

TEST(catalog, stored_nil_message_is_a_message) {
	catalog_t catalog;
	catalog.message("k", message_t());
	EXPECT_TRUE(catalog.has_message("k"));
	EXPECT_TRUE(catalog.message("k") == nil);
	EXPECT_NE(&catalog.message("k"), &catalog_t::m_nil_message);
}

TEST(catalog, message_stored_twice_is_the_later_one_at_the_same_place) {
	catalog_t catalog;
	auto const &first = catalog.message("k", text_in("first", "de"));
	auto const &second = catalog.message("k", text_in("second", "fr"));
	EXPECT_EQ(&first, &second);
	EXPECT_EQ(catalog.size(), 1U);
	EXPECT_EQ(text_of(catalog.message("k")), "second");
	EXPECT_EQ(catalog.message("k")._orginal_locale(), "fr");
}

template <class Text>
class catalog_all_widths : public testing::Test {};

using text_classes = testing::Types<ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(catalog_all_widths, text_classes);

TYPED_TEST(catalog_all_widths, lookups_find_the_same) {
	catalog_t const catalog("app", {}, {{"key", text_in("text", "de_AT")}});
	EXPECT_TRUE(catalog.has_message(ascii_as<TypeParam>("key")));
	EXPECT_FALSE(catalog.has_message(ascii_as<TypeParam>("kez")));
	EXPECT_EQ(&catalog.message(ascii_as<TypeParam>("key")), &catalog.message("key"));
	EXPECT_EQ(&catalog.message(ascii_as<TypeParam>("kez")), &catalog_t::m_nil_message);
	EXPECT_TRUE(catalog.is_language_loaded(ascii_as<TypeParam>("de_AT")));
	EXPECT_TRUE(catalog.is_language_loaded(ascii_as<TypeParam>("de-AT")));
	EXPECT_TRUE(catalog.is_language_loaded(ascii_as<TypeParam>("de.AT")));
	EXPECT_FALSE(catalog.is_language_loaded(ascii_as<TypeParam>("de")));
}

TEST(catalog, malformed_wide_keys_ask_for_minus_one) {
	catalog_t const catalog("app", {}, {{"-1", text_in("text", "_1")}});
	EXPECT_TRUE(catalog.has_message(ustring16(1, 0xD800)));
	EXPECT_EQ(&catalog.message(ustring32(1, static_cast<quor::types::utf32_char>(0xDFFF))), &catalog.message("-1"));
	EXPECT_TRUE(catalog.is_language_loaded(ustring16(1, 0xDC00)));
}

TEST(catalog, languages_are_those_of_the_messages_each_once_in_order) {
	catalog_t catalog;
	EXPECT_EQ(languages_of(catalog), std::vector<ustring8>());
	catalog.message("1", text_in("", "fr"));
	catalog.message("2", text_in("", "de"));
	catalog.message("3", text_in("", "fr"));
	catalog.message("4", text_in("", "de-AT"));
	EXPECT_EQ(languages_of(catalog), (std::vector<ustring8>{"de", "de-AT", "fr"}));
	catalog.gen_lang_set();
	EXPECT_EQ(languages_of(catalog), (std::vector<ustring8>{"de", "de-AT", "fr"}));
}

TEST(catalog, languages_follow_a_stored_message) {
	catalog_t catalog;
	catalog.message("1", text_in("", "fr"));
	EXPECT_TRUE(catalog.is_language_loaded("fr"));
	EXPECT_FALSE(catalog.is_language_loaded("de"));
	catalog.message("2", text_in("", "de"));
	EXPECT_TRUE(catalog.is_language_loaded("de"));
	catalog.message("1", text_in("", "de"));
	EXPECT_FALSE(catalog.is_language_loaded("fr"));
}

TEST(catalog, languages_end_alone_makes_the_set_too) {
	catalog_t catalog;
	catalog.message("1", text_in("", "fr"));
	auto const end = catalog.languages_end();
	EXPECT_EQ(std::distance(catalog.languages_begin(), end), 1);
}

TEST(catalog, language_without_messages_is_never_loaded) {
	catalog_t const catalog("app", {"de"}, {});
	for (char const *language : {"", ".", "en", "de"}) {
		EXPECT_FALSE(catalog.is_language_loaded(language)) << language;
	}
	EXPECT_EQ(languages_of(catalog), std::vector<ustring8>());
}

TEST(catalog, language_asked_for_is_normalised_and_the_stored_one_is_not) {
	struct row {
		char const *stored, *asked;
		bool loaded;
	};
	for (auto const &[stored, asked, loaded] :
	     {row{"en_US", "en_US", true}, row{"en_US", "en-US", true}, row{"en_US", "en.US", true},
	      row{"en_US", "en", false}, row{"en", "en_US", false}, row{"en_US", "EN_us", false},
	      row{"en-US", "en-US", false}, row{"en.US", "en.US", false}, row{".", ".", false}, row{"_", ".", true},
	      row{"_", "-", true}, row{"", "", true}, row{"a_b_c", "a.b-c", true}, row{"", ".", false}}) {
		SCOPED_TRACE(std::string(stored) + " asked as " + asked);
		catalog_t catalog;
		catalog.message("k", text_in("", stored));
		EXPECT_EQ(catalog.is_language_loaded(asked), loaded);
	}
}

TEST(catalog, messages_stand_in_byte_order) {
	catalog_t catalog;
	for (char const *key : {"b", "\xC3\xA4", "B", "a", "", "~"}) {
		catalog.message(key, message_t());
	}
	std::vector<ustring8> keys;
	for (auto const &entry : catalog) {
		keys.push_back(entry.first);
	}
	EXPECT_EQ(keys, (std::vector<ustring8>{"", "B", "a", "b", "~", "\xC3\xA4"}));
}

TEST(catalog, arguments_from_the_catalog_itself_are_safe) {
	catalog_t catalog;
	catalog.message("first", text_in("text", "a language id that is not short"));
	catalog.message(*catalog.languages_begin(), catalog.message("first"));
	EXPECT_TRUE(catalog.has_message("a language id that is not short"));
	catalog.message("first", catalog.message("first"));
	EXPECT_EQ(text_of(catalog.message("first")), "text");
	catalog._name(catalog.begin()->first);
	EXPECT_EQ(catalog.name(), "a language id that is not short");
}

} // namespace
