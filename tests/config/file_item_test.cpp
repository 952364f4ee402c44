#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "support/config_listing.hpp"
#include "support/stop_handler.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor::config::base_config_item;
using quor::config::file_item;
using quor::config::user_item;
using quor::generic::abilities::create_dynamic;
using quor::memory::pointers::rc_pointer;
using quor::strings::ustring8;
using quor_test::listing_text;
using quor_test::on_stop;
using quor_test::stop_handler;
using quor_test::working_directory;

using item_list = base_config_item::item_list;

class config_file_item : public testing::Test {
protected:
	ustring8 path(std::string const &name) const { return m_directory.path(name); }
	std::string loaded(std::string const &text) const {
		m_directory.write("loaded.cfg", text);
		file_item item(path("loaded.cfg"));
		EXPECT_TRUE(item.load());
		return listing_text(item);
	}

	quor_test::temporary_directory m_directory;
};

// Shows what is protected.
class open_file_item : public file_item {
public:
	using file_item::file_item;
	using file_item::file_name;
	using file_item::item_id;
	using file_item::item_tree;
	using file_item::load_file;
	using file_item::parse_comment;
};

rc_pointer<base_config_item> user_with(ustring8 const &key, quor::types::variant const &value) {
	rc_pointer<base_config_item> item(create_dynamic<user_item>());
	item->set(key, value, 0);
	return item;
}

// A value for the list's items to find the file by.
rc_pointer<base_config_item> names_file(ustring8 const &path) {
	return user_with("cfg_file", path);
}

rc_pointer<base_config_item> names_program(ustring8 const &name) {
	return user_with("application.name.raw", name);
}

TEST_F(config_file_item, new_item_knows_its_path_only) {
	file_item const item("some.cfg");
	EXPECT_EQ(item.get_id(), "standard file");
	EXPECT_EQ(item.get_filename(), "some.cfg");
	EXPECT_EQ(listing_text(item), "");
	EXPECT_EQ(file_item(ustring8()).get_filename(), "");
}

TEST_F(config_file_item, load_reads_the_file) {
	EXPECT_EQ(loaded("#comment\n"
	                 "top = 1                // this key has no section\n"
	                 "[server]\n"
	                 "host = alpha\n"
	                 "port = 8080\n"
	                 "name = \"my server\"\n"
	                 "list[] = a, b,\n"
	                 "         c\n"
	                 "[server.log]\n"
	                 "level = 3\n"),
	          "server:0= server.host:1=alpha server.list:3= server.list.0:1=a server.list.1:1=b server.list.2:1=c "
	          "server.log:0= server.log.level:1=3 server.name:1=my server server.port:1=8080 top:1=1");
	EXPECT_EQ(loaded(""), "");
	EXPECT_EQ(loaded("aa = 1\r\n"), "aa:1=1");
	EXPECT_EQ(loaded("key = value # note\npath = a//b\nquoted = \"a//b\""), "key:1=value path:1=a quoted:1=a//b");
	EXPECT_EQ(loaded("\xEF\xBB\xBF[s]\nk=1\n"), "\xEF\xBB\xBF[s]k:1=1");
}

TEST_F(config_file_item, load_values_are_text) {
	m_directory.write("f.cfg", "aa = 0x10\n");
	file_item item(path("f.cfg"));
	item.load();
	ASSERT_NE(item.get_value("AA"), nullptr);
	EXPECT_EQ(item.get_value("aa")->second.type(), typeid(ustring8));
	EXPECT_EQ(item.get_value("aa")->second.as_int(), 16);
	m_directory.write("f.cfg", "list[] = 1, two\n");
	item.load();
	for (char const *const key : {"list.0", "list.1"}) {
		ASSERT_NE(item.get_value(key), nullptr) << key;
		EXPECT_EQ(item.get_value(key)->second.type(), typeid(ustring8)) << key;
	}
}

TEST_F(config_file_item, load_without_a_file_leaves_the_tree) {
	m_directory.make_directory("directory");
	for (ustring8 const &name : {ustring8(), path("missing.cfg"), path("directory"), path("missing\\f.cfg")}) {
		SCOPED_TRACE(name);
		file_item item(name);
		item.set("old", "value", 0);
		EXPECT_TRUE(item.load());
		EXPECT_TRUE(item.load(item_list()));
		EXPECT_EQ(listing_text(item), "old:1=value");
		EXPECT_EQ(item.get_filename(), name);
	}
}

TEST_F(config_file_item, load_again_adds_and_overwrites) {
	m_directory.write("f.cfg", "aa = 1\nbb = 1\n[s]\ncc = 1\n");
	file_item item(path("f.cfg"));
	item.load();
	m_directory.write("f.cfg", "[s]\ncc = 2\ndd = 2\n[]\nbb = 2\n");
	item.load();
	EXPECT_EQ(listing_text(item), "aa:1=1 bb:1=2 s:0= s.cc:1=2 s.dd:1=2");
}

TEST_F(config_file_item, unload_empties_the_tree_and_keeps_the_path) {
	m_directory.write("f.cfg", "aa = 1\n");
	file_item item(path("f.cfg"));
	item.load();
	item.unload();
	EXPECT_EQ(listing_text(item), "");
	EXPECT_EQ(item.get_filename(), path("f.cfg"));
	item.load();
	EXPECT_EQ(listing_text(item), "aa:1=1");
}

TEST_F(config_file_item, load_list_takes_the_first_file_that_opens) {
	m_directory.write("one.cfg", "from = one\n");
	m_directory.write("two.cfg", "from = two\n");
	m_directory.make_directory("directory");
	auto const passage = user_with("cfg_file.deeper", "x");
	auto const nothing = user_with("other", "x");
	struct row {
		char const *name;
		ustring8 given;
		item_list items;
		ustring8 found;
		std::string listing;
	};
	for (auto const &[name, given, items, found, listing] : {
	         row{"no items", "", {}, "", ""},
	         row{"only the given one", path("one.cfg"), {}, path("one.cfg"), "from:1=one"},
	         row{"no keys", path("one.cfg"), {nothing}, path("one.cfg"), "from:1=one"},
	         row{"named", "", {nothing, names_file(path("two.cfg"))}, path("two.cfg"), "from:1=two"},
	         row{"named against the given one",
	             path("one.cfg"),
	             {names_file(path("two.cfg"))},
	             path("two.cfg"),
	             "from:1=two"},
	         row{"first of two",
	             "",
	             {names_file(path("two.cfg")), names_file(path("one.cfg"))},
	             path("two.cfg"),
	             "from:1=two"},
	         row{"first that opens",
	             "",
	             {names_file(path("missing")), names_file(path("directory")), names_file(""), passage,
	              names_file(path("one.cfg"))},
	             path("one.cfg"),
	             "from:1=one"},
	         row{"none opens", path("two.cfg"), {names_file(path("missing")), passage}, path("two.cfg"), "from:1=two"},
	         row{"none opens at all", path("gone.cfg"), {names_file(path("missing"))}, path("gone.cfg"), ""},
	         row{"malformed UTF-8", "", {names_file("\xFF")}, "", ""},
	         row{"program", "", {nothing, names_program(path("one"))}, path("one.cfg"), "from:1=one"},
	         row{"first program that opens",
	             "",
	             {names_program(path("missing")), names_program(path("two"))},
	             path("two.cfg"),
	             "from:1=two"},
	         row{"program against a given file", path("gone.cfg"), {names_program(path("one"))}, path("gone.cfg"), ""},
	         row{"program behind a named file",
	             "",
	             {names_program(path("one")), names_file(path("two.cfg"))},
	             path("two.cfg"),
	             "from:1=two"},
	         row{"named file that doesn't open, program",
	             "",
	             {names_file(path("missing")), names_program(path("one"))},
	             path("one.cfg"),
	             "from:1=one"},
	     }) {
		SCOPED_TRACE(name);
		file_item item(given);
		EXPECT_TRUE(item.load(items));
		EXPECT_EQ(item.get_filename(), found);
		EXPECT_EQ(listing_text(item), listing);
	}
}

TEST_F(config_file_item, load_list_finds_a_program_without_a_name) {
	// A program's name without a dot has an empty raw name.
	m_directory.write(".cfg", "from = hidden\n");
	working_directory const here(m_directory.root());
	file_item item("");
	item.load({names_program("")});
	EXPECT_EQ(item.get_filename(), ".cfg");
	EXPECT_EQ(listing_text(item), "from:1=hidden");
}

TEST_F(config_file_item, load_list_takes_values_of_every_kind_as_text) {
	m_directory.write(".cfg", "from = hidden\n");
	m_directory.write("7", "from = seven\n");
	m_directory.write("8.cfg", "from = eight\n");
	working_directory const here(m_directory.root());
	auto const array = [](ustring8 const &key) {
		rc_pointer<base_config_item> item(create_dynamic<user_item>());
		item->set_array(key, quor::generic::varg_list("7", "8"), quor::generic::varg_list());
		return item;
	};
	struct row {
		char const *name;
		item_list items;
		ustring8 found;
	};
	for (auto const &[name, items, found] : {
	         row{"number", {user_with("cfg_file", 7)}, "7"},
	         row{"number of a program", {user_with("application.name.raw", 8)}, "8.cfg"},
	         row{"array has no text", {array("cfg_file")}, ""},
	         row{"array, then a file", {array("cfg_file"), names_file("7")}, "7"},
	         // There is such a node, so its empty text counts.
	         row{"node passed through by a program's key", {user_with("application.name.raw.more", "x")}, ".cfg"},
	         row{"array of a program", {array("application.name.raw")}, ".cfg"},
	         row{"spelling", {user_with("CFG_File", "7")}, "7"},
	     }) {
		SCOPED_TRACE(name);
		file_item item("");
		EXPECT_TRUE(item.load(items));
		EXPECT_EQ(item.get_filename(), found);
	}
}

TEST_F(config_file_item, load_list_takes_a_malformed_path_for_the_file_of_that_text) {
	m_directory.write("-1", "from = one\n");
	working_directory const here(m_directory.root());
	file_item item("");
	item.load({names_file("\xFF\xFE")});
	EXPECT_EQ(item.get_filename(), "\xFF\xFE");
	EXPECT_EQ(listing_text(item), "from:1=one");
}

TEST_F(config_file_item, load_list_asks_the_item_itself_too) {
	// The file names another one, which is found at the next load; the name stays.
	m_directory.write("one.cfg", "cfg_file = \"" + path("two.cfg") + "\"\nfrom = one\n");
	m_directory.write("two.cfg", "from = two\n");
	rc_pointer<base_config_item> const item(create_dynamic<file_item>(path("one.cfg")));
	item_list const items{item};
	item->load(items);
	EXPECT_EQ(item->get_value("from")->second.as_string(), "one");
	item->load(items);
	EXPECT_EQ(item->get_value("from")->second.as_string(), "two");
	EXPECT_EQ(static_cast<file_item &>(*item).get_filename(), path("two.cfg"));
	item->unload();
	item->load(items);
	EXPECT_EQ(listing_text(*item), "from:1=two");
}

TEST_F(config_file_item, load_key_of_one_byte_goes_to_the_handler) {
	m_directory.write("f.cfg", "aa = 1\nb = 2\ncc = 3\n");
	{
		stop_handler const stops(on_stop::throws);
		file_item item(path("f.cfg"));
		EXPECT_THROW(item.load(), quor_test::stopped);
		EXPECT_EQ(listing_text(item), "aa:1=1");
		EXPECT_EQ(stops.count(), 1U);
	}
	stop_handler const stops(on_stop::returns);
	file_item item(path("f.cfg"));
	EXPECT_TRUE(item.load());
	EXPECT_EQ(listing_text(item), "aa:1=1 b:1=2 cc:1=3");
	EXPECT_EQ(stops.count(), 1U);
}

TEST_F(config_file_item, load_key_of_one_byte_ends_the_process) {
	m_directory.write("f.cfg", "a = 1\n");
	m_directory.write("last.cfg", "aa = 1\nb");
	EXPECT_DEATH(file_item(path("f.cfg")).load(), "invalid parameter: string subscript out of range");
	EXPECT_DEATH(file_item(path("last.cfg")).load(), "invalid parameter: string subscript out of range");
}

TEST_F(config_file_item, save_writes_the_tree) {
	file_item item(path("f.cfg"));
	item.set("sec.a", "1", 0);
	item.set("sec.b", "x y", 0);
	item.set_array("sec.c", quor::generic::varg_list("p", "q"), quor::generic::varg_list());
	item.set("sec.d", "2", 0);
	item.set("top", "3", 0);
	EXPECT_TRUE(item.save());
	EXPECT_EQ(m_directory.read("f.cfg"), "[sec]\r\na=1\r\nb=\"x y\"\r\nc[]=p,q\r\n\r\n");
	EXPECT_EQ(listing_text(item), "sec:0= sec.a:1=1 sec.b:1=x y sec.c:3= sec.c.0:1=p sec.c.1:1=q sec.d:1=2 top:1=3");
}

TEST_F(config_file_item, save_replaces_the_old_file) {
	m_directory.write("f.cfg", "# comment\nolder = content\n");
	file_item item(path("f.cfg"));
	item.load();
	EXPECT_TRUE(item.save());
	EXPECT_TRUE(m_directory.has("f.cfg"));
	EXPECT_EQ(m_directory.read("f.cfg"), "");
}

TEST_F(config_file_item, save_without_a_place_returns_true) {
	m_directory.make_directory("directory");
	for (ustring8 const &name : {ustring8(), path("missing\\f.cfg"), path("directory")}) {
		SCOPED_TRACE(name);
		file_item item(name);
		item.set("s.k", "v", 0);
		EXPECT_TRUE(item.save());
	}
	EXPECT_FALSE(m_directory.has("missing"));
}

TEST_F(config_file_item, save_list_writes_nothing) {
	file_item item(path("f.cfg"));
	item.set("s.k", "v", 0);
	EXPECT_TRUE(item.save(item_list()));
	EXPECT_FALSE(m_directory.has("f.cfg"));
	base_config_item &base = item;
	EXPECT_TRUE(base.save(item_list()));
	EXPECT_FALSE(m_directory.has("f.cfg"));
	EXPECT_TRUE(base.save());
	EXPECT_TRUE(m_directory.has("f.cfg"));
}

TEST_F(config_file_item, save_of_an_array_at_the_end_goes_to_the_handler) {
	m_directory.write("f.cfg", "old");
	file_item item(path("f.cfg"));
	item.set_array("sec.k", quor::generic::varg_list("p", "q"), quor::generic::varg_list());
	{
		stop_handler const stops(on_stop::throws);
		EXPECT_THROW(item.save(), quor_test::stopped);
		EXPECT_EQ(stops.count(), 1U);
		EXPECT_EQ(m_directory.read("f.cfg"), "old");
	}
	stop_handler const stops(on_stop::returns);
	EXPECT_TRUE(item.save());
	EXPECT_EQ(stops.count(), 1U);
	EXPECT_EQ(m_directory.read("f.cfg"), "[sec]\r\nk[]=p,q\r\n\r\n");
}

TEST_F(config_file_item, save_of_an_array_at_the_end_ends_the_process) {
	m_directory.write("f.cfg", "old");
	file_item item(path("f.cfg"));
	item.set_array("sec.k", quor::generic::varg_list("p", "q"), quor::generic::varg_list());
	EXPECT_DEATH(item.save(), "invalid parameter: vector iterator not incrementable");
	EXPECT_EQ(m_directory.read("f.cfg"), "old");
}

TEST_F(config_file_item, save_and_load_give_sections_of_one_length_the_keys_of_all) {
	m_directory.write("f.cfg", "[abc]\nk1 = 1\n[xyz]\nk2 = 2\n");
	file_item item(path("f.cfg"));
	item.load();
	item.save();
	item.unload();
	item.load();
	std::string const both = "abc:0= abc.k1:1=1 abc.k2:1=2 xyz:0= xyz.k1:1=1 xyz.k2:1=2";
	EXPECT_EQ(listing_text(item), both);
	item.save();
	item.load();
	EXPECT_EQ(listing_text(item), both);
}

TEST_F(config_file_item, copies_are_deep_and_have_the_literal_id) {
	m_directory.write("f.cfg", "aa = 1\n");
	open_file_item item(path("f.cfg"));
	item.load();
	item.item_id = "other";
	file_item const copy(item);
	std::unique_ptr<file_item> const clone(item.clone());
	std::unique_ptr<base_config_item> const base_clone(static_cast<base_config_item const &>(item).clone());
	item.unload();
	for (file_item const *made :
	     {&copy, static_cast<file_item const *>(clone.get()), dynamic_cast<file_item const *>(base_clone.get())}) {
		ASSERT_NE(made, nullptr);
		EXPECT_EQ(made->get_id(), "standard file");
		EXPECT_EQ(made->get_filename(), path("f.cfg"));
		EXPECT_EQ(listing_text(*made), "aa:1=1");
		EXPECT_EQ(made->get_ref_count(), 0U);
	}
	EXPECT_FALSE(copy.is_created_dynamic());
	EXPECT_TRUE(clone->is_created_dynamic());
}

TEST_F(config_file_item, assignment_copies_id_tree_and_path) {
	open_file_item source("source.cfg");
	source.item_id = "other";
	source.set("aa", "1", 0);
	file_item target("target.cfg");
	target.set("bb", "2", 0);
	EXPECT_EQ(&(target = source), &target);
	EXPECT_EQ(target.get_id(), "other");
	EXPECT_EQ(target.get_filename(), "source.cfg");
	EXPECT_EQ(listing_text(target), "aa:1=1");
	file_item const &same = target;
	target = same;
	EXPECT_EQ(target.get_filename(), "source.cfg");
	EXPECT_EQ(listing_text(target), "aa:1=1");
}

TEST_F(config_file_item, derived_classes_reach_the_steps) {
	m_directory.write("f.cfg", "aa = 1\n");
	open_file_item item("");
	item.load_file();
	EXPECT_EQ(listing_text(item), "");
	item.file_name = path("f.cfg");
	item.load_file();
	EXPECT_EQ(listing_text(item), "aa:1=1");
	unsigned int pos = 1;
	item.parse_comment("# note\r\nk", pos);
	EXPECT_EQ(pos, 6U);
	item.parse_comment("# \"", pos = 1);
	EXPECT_EQ(pos, 4U);
	item.parse_comment("#", pos = 7);
	EXPECT_EQ(pos, 7U);
}

TEST_F(config_file_item, dump_writes_id_and_tree) {
	file_item item("");
	item.set("aa", "1", 0);
	std::ostringstream stream;
	stream << item;
	EXPECT_EQ(stream.str(), "object : standard file\n|---------------\\\n|\t\taa : 1 1\n|\t\t|\n|\t\tend\nend\n");
}

} // namespace
