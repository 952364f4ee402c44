#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"
#include "support/xmc_file_text.hpp"

namespace {

using quor::i18n::catalog_t;
using quor::i18n::message_catalogs;
using quor::i18n::message_t;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::nil;
using quor::types::wide_string;
using quor_test::ascii_as;
using quor_test::temporary_directory;
using quor_test::xmc;
using quor_test::xmc_catalog;
using result_type = message_catalogs::result_type;

std::string rendered(message_t const &message) {
	return message.as_string(quor::generic::varg_list());
}

std::string rendered(message_catalogs const &catalogs, char const *key) {
	return rendered(catalogs.message("app", key));
}

// What a static initialiser of a client sees.
bool const nil_is_there_early = message_catalogs::s_nil_catalog == nil && message_catalogs::s_nil_message == nil &&
                                &message_catalogs().catalog("x") == &message_catalogs::s_nil_catalog &&
                                &message_catalogs().message("x", "y") == &message_catalogs::s_nil_message;

class message_catalogs_queries : public testing::Test {
protected:
	void SetUp() override {
		m_directory.write("app.xmc",
		                  xmc(xmc_catalog("app", "de-AT", {{"hello", "Servus"}, {"", ""}}) +
		                      xmc_catalog("app", "en", {{"bye", "Goodbye"}}) + xmc_catalog("other", "en", {})));
		ASSERT_TRUE(m_catalogs.load(m_directory.path("app.xmc"), "de_AT") == message_catalogs::no_error);
	}

	temporary_directory m_directory;
	message_catalogs m_catalogs;
};

template <class Text>
class message_catalogs_all_widths : public message_catalogs_queries {
protected:
	static Text as(std::string const &text) { return ascii_as<Text>(text); }
	Text path(std::string const &name = {}) const { return as(m_directory.path(name)); }
};

using text_classes = testing::Types<ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(message_catalogs_all_widths, text_classes);

TYPED_TEST(message_catalogs_all_widths, has_catalog_by_name_and_language) {
	auto const &catalogs = this->m_catalogs;
	EXPECT_TRUE(catalogs.has_catalog(this->as("app")));
	EXPECT_TRUE(catalogs.has_catalog(this->as("other")));
	EXPECT_FALSE(catalogs.has_catalog(this->as("App")));
	EXPECT_FALSE(catalogs.has_catalog(this->as("")));
	EXPECT_TRUE(catalogs.has_catalog(this->as("app"), this->as("en")));
	EXPECT_FALSE(catalogs.has_catalog(this->as("app"), this->as("fr")));
	EXPECT_FALSE(catalogs.has_catalog(this->as("other"), this->as("en")));
	EXPECT_FALSE(catalogs.has_catalog(this->as("missing"), this->as("en")));
	// The id is stored as the file spells it, while the one asked for is normalised.
	for (char const *language : {"de_AT", "de-AT", "de.AT"}) {
		EXPECT_FALSE(catalogs.has_catalog(this->as("app"), this->as(language))) << language;
	}
	for (char const *language : {"fr_CA", "fr-CA", "fr.CA"}) {
		EXPECT_FALSE(catalogs.has_catalog(this->as("app"), this->as(language))) << language;
	}
}

TYPED_TEST(message_catalogs_all_widths, catalog_and_messages_by_name) {
	auto const &catalogs = this->m_catalogs;
	EXPECT_EQ(catalogs.catalog(this->as("app")).name(), "app");
	EXPECT_EQ(&catalogs.catalog(this->as("missing")), &message_catalogs::s_nil_catalog);
	EXPECT_EQ(rendered(catalogs.message(this->as("app"), this->as("hello"))), "Servus");
	EXPECT_EQ(&catalogs.message(this->as("app"), this->as("missing")), &catalog_t::m_nil_message);
	EXPECT_EQ(&catalogs.message(this->as("missing"), this->as("hello")), &message_catalogs::s_nil_message);
	EXPECT_TRUE(catalogs.has_message(this->as("app"), this->as("hello")));
	EXPECT_FALSE(catalogs.has_message(this->as("app"), this->as("missing")));
	EXPECT_FALSE(catalogs.has_message(this->as("missing"), this->as("hello")));
}

TYPED_TEST(message_catalogs_all_widths, sizes_and_ranges_by_name) {
	auto const &catalogs = this->m_catalogs;
	EXPECT_EQ(catalogs.size(this->as("app")), 3U);
	EXPECT_EQ(catalogs.count(this->as("app")), 3U);
	EXPECT_EQ(catalogs.size(this->as("other")), 0U);
	EXPECT_EQ(catalogs.size(this->as("missing")), 0U);
	EXPECT_EQ(catalogs.count(this->as("missing")), 0U);
	EXPECT_EQ(std::distance(catalogs.begin(this->as("app")), catalogs.end(this->as("app"))), 3);
	EXPECT_TRUE(catalogs.begin(this->as("missing")) == catalogs.end(this->as("missing")));
	EXPECT_EQ(catalogs.begin(this->as("app"))->first, "");
}

TYPED_TEST(message_catalogs_all_widths, erase_of_one_catalog) {
	auto &catalogs = this->m_catalogs;
	catalogs.erase(this->as("missing"));
	EXPECT_EQ(catalogs.size(), 2U);
	catalogs.erase(this->as("app"));
	EXPECT_EQ(catalogs.size(), 1U);
	EXPECT_FALSE(catalogs.has_catalog("app"));
	EXPECT_TRUE(catalogs.has_catalog("other"));
}

TYPED_TEST(message_catalogs_all_widths, load_of_one_path) {
	auto const language = this->as("de-AT");
	struct row {
		char const *name;
		result_type result;
	};
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load(this->path("app.xmc"), language) == message_catalogs::no_error);
	EXPECT_EQ(rendered(catalogs, "hello"), "Servus");
	catalogs.erase();
	EXPECT_TRUE(catalogs.load(this->path(), language) == message_catalogs::no_error);
	EXPECT_EQ(rendered(catalogs, "hello"), "Servus");
	catalogs.erase();
	EXPECT_TRUE(catalogs.load_file(this->path("app.xmc"), language) == message_catalogs::no_error);
	EXPECT_EQ(rendered(catalogs, "hello"), "Servus");
	catalogs.erase();
	EXPECT_TRUE(catalogs.load_directory(this->path(), language) == message_catalogs::no_error);
	EXPECT_EQ(rendered(catalogs, "hello"), "Servus");
	EXPECT_TRUE(catalogs.has_catalog("other"));
}

TYPED_TEST(message_catalogs_all_widths, load_of_one_catalog_leaves_the_others) {
	auto const language = this->as("de_AT");
	auto const check = [this](auto const &load) {
		message_catalogs catalogs;
		EXPECT_TRUE(load(catalogs, this->as("app")) == message_catalogs::no_error);
		EXPECT_EQ(rendered(catalogs, "hello"), "Servus");
		EXPECT_FALSE(catalogs.has_catalog("other"));
		catalogs.erase();
		// A name that no catalog has is no fault.
		EXPECT_TRUE(load(catalogs, this->as("missing")) == message_catalogs::no_error);
		EXPECT_TRUE(catalogs == nil);
		EXPECT_TRUE(load(catalogs, TypeParam()) == message_catalogs::no_error);
		EXPECT_EQ(catalogs.size(), 2U);
	};
	check(
	    [&](message_catalogs &set, TypeParam const &name) { return set.load(this->path("app.xmc"), language, name); });
	check([&](message_catalogs &set, TypeParam const &name) { return set.load(this->path(), language, name); });
	check([&](message_catalogs &set, TypeParam const &name) {
		return set.load_file(this->path("app.xmc"), language, name);
	});
	check(
	    [&](message_catalogs &set, TypeParam const &name) { return set.load_directory(this->path(), language, name); });
	check([&](message_catalogs &set, TypeParam const &name) {
		return set.load(std::vector<TypeParam>{this->path("app.xmc")}, language, name);
	});
	check([&](message_catalogs &set, TypeParam const &name) {
		return set.load(std::vector<std::string>{this->m_directory.path("app.xmc")}, language, name);
	});
	check([&](message_catalogs &set, TypeParam const &name) {
		return set.load(std::vector<wide_string>{ascii_as<wide_string>(this->m_directory.path("app.xmc"))}, language,
		                name);
	});
}

TYPED_TEST(message_catalogs_all_widths, load_of_several_paths) {
	this->m_directory.write("more/b.xml", xmc(xmc_catalog("more", "de", {{"k", "mehr"}})));
	auto const language = this->as("de");
	auto const check = [](auto const &load) {
		message_catalogs catalogs;
		auto const result = load(catalogs);
		EXPECT_TRUE(result == message_catalogs::no_error);
		EXPECT_EQ(result.message(),
		          "message_catalogs::result_type - No Error\n xmc_file_loader::load_error - No Error");
		EXPECT_EQ(rendered(catalogs, "bye"), "Goodbye");
		EXPECT_EQ(rendered(catalogs.message("more", "k")), "mehr");
	};
	std::vector<std::string> const names{this->m_directory.path("app.xmc"), this->m_directory.path("more")};
	std::vector<TypeParam> texts;
	std::vector<wide_string> wide;
	for (auto const &name : names) {
		texts.push_back(this->as(name));
		wide.push_back(ascii_as<wide_string>(name));
	}
	check([&](message_catalogs &set) { return set.load(texts, language); });
	check([&](message_catalogs &set) { return set.load(names, language); });
	check([&](message_catalogs &set) { return set.load(wide, language); });
}

TYPED_TEST(message_catalogs_all_widths, load_of_no_paths_is_success) {
	message_catalogs catalogs;
	for (auto const &result : {catalogs.load(std::vector<TypeParam>(), this->as("de")),
	                           catalogs.load(std::vector<std::string>(), this->as("de")),
	                           catalogs.load(std::vector<wide_string>(), this->as("de"), this->as("app"))}) {
		EXPECT_TRUE(result == message_catalogs::no_error);
		EXPECT_EQ(result.message(), "message_catalogs::result_type - No Error");
	}
}

TYPED_TEST(message_catalogs_all_widths, load_of_several_paths_ends_with_the_first_that_fails) {
	this->m_directory.write("b.xmc", xmc(xmc_catalog("later", "en", {})));
	std::vector<TypeParam> const paths{this->path("app.xmc"), this->path("missing"), this->path("b.xmc")};
	message_catalogs catalogs;
	auto const result = catalogs.load(paths, this->as("en"));
	EXPECT_TRUE(result == message_catalogs::entity_not_found);
	EXPECT_EQ(result.message(), "message_catalogs::result_type - Entity (file or directory) \"" +
	                                this->m_directory.path("missing") + "\" was not found on disk");
	EXPECT_TRUE(catalogs.has_catalog("app"));
	EXPECT_FALSE(catalogs.has_catalog("later"));
}

TYPED_TEST(message_catalogs_all_widths, load_of_what_is_not_there_names_it) {
	message_catalogs catalogs;
	auto const missing = this->path("missing");
	ustring8 const name = this->m_directory.path("missing");
	auto const result = catalogs.load(missing, this->as("en"));
	EXPECT_TRUE(result == message_catalogs::entity_not_found);
	EXPECT_EQ(result.message(),
	          "message_catalogs::result_type - Entity (file or directory) \"" + name + "\" was not found on disk");
	auto const file = catalogs.load_file(missing, this->as("en"));
	EXPECT_TRUE(file == message_catalogs::file_not_found);
	EXPECT_EQ(file.message(), "message_catalogs::result_type - File was not found on disk\n "
	                          "xmc_file_loader::load_error - File \"" +
	                              name + "\" was not found on disk");
	auto const directory = catalogs.load_directory(missing, this->as("en"));
	EXPECT_TRUE(directory == message_catalogs::directory_not_found);
	EXPECT_EQ(directory.message(), "message_catalogs::result_type - Directory \"" + name + "\" was not found on disk");
	EXPECT_TRUE(catalogs.load(TypeParam(), this->as("en")) == message_catalogs::entity_not_found);
	EXPECT_TRUE(catalogs.load_directory(TypeParam(), this->as("en")) == message_catalogs::directory_not_found);
	EXPECT_TRUE(catalogs.load_file(TypeParam(), this->as("en")) == message_catalogs::file_not_found);
	EXPECT_TRUE(catalogs == nil);
}

TEST(message_catalogs, nil_objects_are_there_for_static_initialisers) {
	EXPECT_TRUE(nil_is_there_early);
}

TEST_F(message_catalogs_queries, message_takes_standard_strings_and_character_pointers) {
	char catalog[] = "app";
	char key[] = "hello";
	char *const catalog_pointer = catalog;
	char *const key_pointer = key;
	auto const *const expected = &m_catalogs.message(ustring8("app"), ustring8("hello"));
	EXPECT_EQ(rendered(*expected), "Servus");
	EXPECT_EQ(&m_catalogs.message("app", "hello"), expected);
	EXPECT_EQ(&m_catalogs.message(catalog_pointer, key_pointer), expected);
	EXPECT_EQ(&m_catalogs.message(catalog, "hello"), expected);
	EXPECT_EQ(&m_catalogs.message(std::string("app"), std::string("hello")), expected);
	EXPECT_EQ(&m_catalogs.message(QUOR_W("app"), QUOR_W("hello")), expected);
	EXPECT_EQ(&m_catalogs.message(QUOR_U32("app"), QUOR_U32("hello")), expected);
	EXPECT_EQ(&m_catalogs.message(ustring8("app"), "hello"), expected);
	EXPECT_EQ(&m_catalogs.message("app", std::string("hello")), expected);
	EXPECT_EQ(&m_catalogs.message(std::string("app"), ustring8("hello")), expected);
	EXPECT_EQ(&m_catalogs.message(ustring8("app"), std::string("hello")), expected);
	EXPECT_EQ(&m_catalogs.message(wide_string(QUOR_W("app")), wide_string(QUOR_W("hello"))), expected);
}

TEST_F(message_catalogs_queries, literals_are_understood_everywhere) {
	EXPECT_TRUE(m_catalogs.has_catalog("app"));
	EXPECT_TRUE(m_catalogs.has_catalog("app", "en"));
	EXPECT_TRUE(m_catalogs.has_message("app", "hello"));
	EXPECT_EQ(m_catalogs.catalog("app").name(), "app");
	EXPECT_EQ(m_catalogs.size("app"), 3U);
	EXPECT_EQ(m_catalogs.count("app"), 3U);
	EXPECT_EQ(std::distance(m_catalogs.begin("app"), m_catalogs.end("app")), 3);
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load("", "en") == message_catalogs::entity_not_found);
	EXPECT_TRUE(catalogs.load("", "en", "app") == message_catalogs::entity_not_found);
	EXPECT_TRUE(catalogs.load_file("", "en") == message_catalogs::file_not_found);
	EXPECT_TRUE(catalogs.load_file("", "en", "app") == message_catalogs::file_not_found);
	EXPECT_TRUE(catalogs.load_directory("", "en") == message_catalogs::directory_not_found);
	EXPECT_TRUE(catalogs.load_directory("", "en", "app") == message_catalogs::directory_not_found);
	EXPECT_TRUE(catalogs.load(std::vector<std::string>{""}, "en") == message_catalogs::entity_not_found);
	EXPECT_TRUE(catalogs.load(std::vector<ustring8>{""}, "en", "app") == message_catalogs::entity_not_found);
	EXPECT_TRUE(catalogs.load(std::vector<wide_string>{QUOR_W("")}, "en") == message_catalogs::entity_not_found);
	m_catalogs.erase("app");
	EXPECT_EQ(m_catalogs.size(), 1U);
}

TEST_F(message_catalogs_queries, load_of_paths_in_braces_takes_each_in_order) {
	m_directory.write("more.xmc", xmc(xmc_catalog("more", "en", {{"k", "more"}})));
	std::string const app = m_directory.path("app.xmc");
	ustring8 const more = m_directory.path("more.xmc");
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load({app, more}, "en") == message_catalogs::no_error);
	EXPECT_EQ(catalogs.size(), 3U);
	catalogs.erase();
	char const *const app_path = app.c_str();
	char const *const more_path = more.c_str();
	EXPECT_TRUE(catalogs.load({app_path, more_path, "missing"}, "en", "more") == message_catalogs::entity_not_found);
	EXPECT_EQ(catalogs.size(), 1U);
	EXPECT_TRUE(catalogs.load({"missing"}, "en") == message_catalogs::entity_not_found);
}

TEST_F(message_catalogs_queries, stored_nil_message_counts_as_absent) {
	EXPECT_TRUE(m_catalogs.catalog("app").has_message(""));
	EXPECT_FALSE(m_catalogs.has_message("app", ""));
	EXPECT_TRUE(m_catalogs.message("app", "") == nil);
}

TEST_F(message_catalogs_queries, unknown_messages_render_as_nothing) {
	EXPECT_EQ(rendered(m_catalogs.message("missing", "hello")), "");
	EXPECT_EQ(rendered(m_catalogs.message("app", "missing")), "");
	EXPECT_TRUE(m_catalogs.catalog("missing") == nil);
}

TEST_F(message_catalogs_queries, iterators_walk_the_catalogs_by_name) {
	std::vector<ustring8> names;
	for (auto const &entry : m_catalogs) {
		names.push_back(entry.first);
	}
	EXPECT_EQ(names, (std::vector<ustring8>{"app", "other"}));
	auto const &constant = m_catalogs;
	EXPECT_EQ(std::distance(constant.begin(), constant.end()), 2);
	EXPECT_EQ(m_catalogs.size(), 2U);
	EXPECT_EQ(m_catalogs.count(), 2U);
}

TEST_F(message_catalogs_queries, loaded_catalogs_are_counted_objects_that_the_set_holds) {
	for (auto const &[name, catalog] : m_catalogs) {
		EXPECT_TRUE(catalog->is_created_dynamic()) << name;
		EXPECT_EQ(catalog->get_ref_count(), 1U) << name;
	}
}

TEST_F(message_catalogs_queries, copies_share_their_catalogs) {
	message_catalogs const copy(m_catalogs);
	message_catalogs assigned;
	assigned = copy;
	message_catalogs by_name;
	by_name.assign(copy);
	EXPECT_EQ(&copy.catalog("app"), &m_catalogs.catalog("app"));
	EXPECT_EQ(copy.catalog("app").get_ref_count(), 4U);
	m_catalogs.erase();
	by_name.remove();
	EXPECT_TRUE(m_catalogs == nil);
	EXPECT_TRUE(by_name == nil);
	EXPECT_EQ(rendered(copy, "hello"), "Servus");
	EXPECT_EQ(rendered(assigned, "hello"), "Servus");
	EXPECT_EQ(copy.catalog("app").get_ref_count(), 2U);
}

TEST_F(message_catalogs_queries, loading_into_a_copy_changes_shared_catalogs_and_adds_only_there) {
	message_catalogs copy(m_catalogs);
	m_directory.write("new.xmc", xmc(xmc_catalog("app", "en", {{"new", "New"}}) + xmc_catalog("third", "en", {})));
	auto const *const before = &m_catalogs.message("app", "hello");
	ASSERT_TRUE(copy.load(m_directory.path("new.xmc"), "en") == message_catalogs::no_error);
	EXPECT_EQ(rendered(m_catalogs, "new"), "New");
	EXPECT_TRUE(copy.has_catalog("third"));
	EXPECT_FALSE(m_catalogs.has_catalog("third"));
	EXPECT_EQ(&m_catalogs.message("app", "hello"), before);
}

TEST_F(message_catalogs_queries, assignment_of_itself_and_of_nil) {
	auto const &same = m_catalogs;
	m_catalogs = same;
	m_catalogs.assign(same);
	EXPECT_EQ(rendered(m_catalogs, "hello"), "Servus");
	EXPECT_EQ(m_catalogs.catalog("app").get_ref_count(), 1U);
	EXPECT_TRUE(m_catalogs != nil);
	EXPECT_FALSE(m_catalogs.equal(nil));
	message_catalogs copy(m_catalogs);
	m_catalogs = nil;
	copy.assign(nil);
	EXPECT_TRUE(m_catalogs == nil);
	EXPECT_TRUE(copy.equal(nil));
	EXPECT_EQ(copy.size(), 0U);
}

TEST_F(message_catalogs_queries, null_pointer_in_the_map_counts_as_no_catalog) {
	m_catalogs.begin()->second = nullptr;
	EXPECT_FALSE(m_catalogs.has_catalog("app"));
	EXPECT_FALSE(m_catalogs.has_catalog("app", "en"));
	EXPECT_EQ(&m_catalogs.catalog("app"), &message_catalogs::s_nil_catalog);
	EXPECT_EQ(&m_catalogs.message("app", "hello"), &message_catalogs::s_nil_message);
	EXPECT_FALSE(m_catalogs.has_message("app", "hello"));
	EXPECT_EQ(m_catalogs.size("app"), 0U);
	EXPECT_TRUE(m_catalogs.begin("app") == m_catalogs.end("app"));
	EXPECT_THROW(m_catalogs.load(m_directory.path("app.xmc"), "en"), char const *);
	m_catalogs.erase("app");
	EXPECT_EQ(m_catalogs.size(), 1U);
	EXPECT_TRUE(m_catalogs.load(m_directory.path("app.xmc"), "en") == message_catalogs::no_error);
}

TEST_F(message_catalogs_queries, malformed_wide_names_ask_for_minus_one) {
	m_directory.write("minus.xmc", xmc(xmc_catalog("-1", "_1", {{"-1", "minus one"}})));
	// The language "-1" is "_1", and its first beginning is the empty id.
	ASSERT_TRUE(m_catalogs.load(m_directory.path("minus.xmc"), "-1") == message_catalogs::no_error);
	ustring16 const bad(1, 0xD800);
	EXPECT_TRUE(m_catalogs.has_catalog(bad));
	EXPECT_TRUE(m_catalogs.has_catalog(bad, bad));
	EXPECT_EQ(rendered(m_catalogs.message(bad, bad)), "minus one");
}

TEST_F(message_catalogs_queries, arguments_from_the_set_itself_are_safe) {
	m_directory.write("d/1.xmc", xmc(xmc_catalog("app", "fr_a_language_id_that_is_long", {{"hello", "1"}})));
	m_directory.write("d/2.xmc", xmc(xmc_catalog("app", "fr_a_language_id_that_is_long", {{"hello", "2"}})));
	message_catalogs catalogs;
	auto const language = ustring8("fr_a_language_id_that_is_long");
	ASSERT_TRUE(catalogs.load(m_directory.path("d"), language) == message_catalogs::no_error);
	// The id is part of the message that the load replaces.
	auto const &held = catalogs.message("app", "hello")._orginal_locale();
	ASSERT_TRUE(catalogs.load(m_directory.path("d"), held) == message_catalogs::no_error);
	ASSERT_TRUE(catalogs.load(std::vector<ustring8>{m_directory.path("d")}, held) == message_catalogs::no_error);
	EXPECT_EQ(catalogs.message("app", "hello")._orginal_locale(), language);
	catalogs.erase(catalogs.begin()->first);
	EXPECT_TRUE(catalogs == nil);
}

} // namespace
