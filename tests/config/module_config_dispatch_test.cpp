#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"

namespace {

using quor::config::config_dispatch;
using quor::config::config_manager;
using quor::config::enviroment_item;
using quor::config::file_item;
using quor::config::module_config_dispatch;
using quor::config::user_item;
using quor::generic::varg_list;
using quor::strings::ustring16;
using quor::strings::ustring8;
using quor::types::variant;
using quor_test::temporary_directory;
using quor_test::working_directory;

using item_list = config_dispatch::item_list;

// Ids and, for file items, paths, with a comma behind each.
std::string items_of(item_list const &items) {
	std::string result;
	for (auto const &item : items) {
		result += item->get_id();
		if (auto const *const file = dynamic_cast<file_item const *>(item.get())) {
			result += " " + file->get_filename();
		}
		result += ",";
	}
	return result;
}

std::string setup_of(module_config_dispatch const &dispatch) {
	item_list items;
	dispatch.setup(items);
	return items_of(items);
}

char const *const some_envp[] = {"HOME=/home", nullptr};

TEST(module_config_dispatch, setup_appends_files_environment_and_user_values) {
	module_config_dispatch const dispatch(varg_list("a.cfg", "b.cfg"), some_envp);
	item_list items;
	items.push_back(quor::generic::abilities::create_dynamic<user_item>());
	dispatch.setup(items);
	EXPECT_EQ("user item,standard file a.cfg,standard file b.cfg,enviroment,user_item,", items_of(items));
	for (auto const &item : items) {
		EXPECT_EQ(1u, item->get_ref_count());
		EXPECT_TRUE(item->is_created_dynamic());
		EXPECT_EQ(nullptr, item->get_value("home")) << "nothing is loaded";
		auto const *const environment = dynamic_cast<enviroment_item const *>(item.get());
		EXPECT_TRUE(environment == nullptr || environment->get_envp() == some_envp);
	}
	dispatch.setup(items);
	EXPECT_EQ(9u, items.size());
}

TEST(module_config_dispatch, files_are_the_texts_of_the_values) {
	EXPECT_EQ("enviroment,user_item,", setup_of(module_config_dispatch(varg_list(), nullptr)));
	EXPECT_EQ("standard file a.cfg,enviroment,user_item,", setup_of(module_config_dispatch({"a.cfg"}, nullptr)));
	EXPECT_EQ("standard file a,standard file b,enviroment,user_item,",
	          setup_of(module_config_dispatch({"a", ustring8("b")}, nullptr)));
	varg_list files;
	files.push_back("a name", "one.cfg");
	files.push_back("", 7);
	files.push_back("", variant());
	files.push_back("", ustring16(1, 'w'));
	files.push_back("", "one.cfg");
	EXPECT_EQ("standard file one.cfg,standard file 7,standard file ,standard file w,standard file one.cfg,"
	          "enviroment,user_item,",
	          setup_of(module_config_dispatch(files, nullptr)));
}

TEST(module_config_dispatch, copies_have_all_fields) {
	module_config_dispatch const dispatch(varg_list("a.cfg", "b.cfg"), some_envp);
	std::string const expected = setup_of(dispatch);
	EXPECT_EQ(expected, setup_of(module_config_dispatch(dispatch)));
	module_config_dispatch assigned(varg_list("other.cfg"), nullptr);
	assigned = dispatch;
	EXPECT_EQ(expected, setup_of(assigned));
	module_config_dispatch const &same = assigned;
	assigned = same;
	EXPECT_EQ(expected, setup_of(assigned));
	std::unique_ptr<config_dispatch> const clone(dispatch.clone());
	ASSERT_NE(nullptr, dynamic_cast<module_config_dispatch *>(clone.get()));
	EXPECT_EQ(expected, setup_of(dynamic_cast<module_config_dispatch &>(*clone)));
	for (module_config_dispatch const *copy : {&assigned, dynamic_cast<module_config_dispatch *>(clone.get())}) {
		config_manager manager;
		manager.init(*copy);
		manager.load();
		EXPECT_EQ("/home", manager.get_value("home").as_string());
	}
}

TEST(module_config_dispatch, precedence_is_files_environment_user_values) {
	temporary_directory const directory;
	directory.write("first.cfg", "first=first\nall=first\n");
	directory.write("second.cfg", "second=second\nall=second\n");
	char const *const envp[] = {"ALL=environment", "OWN=environment", "FIRST=environment", nullptr};
	config_manager manager;
	manager.init(module_config_dispatch({directory.path("first.cfg"), directory.path("second.cfg")}, envp));
	auto const defaults = manager.get_config_item("user_item");
	ASSERT_FALSE(defaults.empty());
	EXPECT_TRUE(manager.get_config_item("user item").empty());
	for (char const *key : {"all", "own", "default"}) {
		defaults->set(key, "default", 0);
	}
	EXPECT_EQ("default", manager.get_value("all").as_string()) << "nothing else is loaded";
	for (int round = 0; round != 2; ++round) {
		ASSERT_TRUE(manager.load());
		EXPECT_EQ("first", manager.get_value("all").as_string());
		EXPECT_EQ("first", manager.get_value("first").as_string());
		EXPECT_EQ("second", manager.get_value("second").as_string());
		EXPECT_EQ("environment", manager.get_value("own").as_string());
		EXPECT_EQ("default", manager.get_value("default").as_string());
		ASSERT_TRUE(manager.unload());
		EXPECT_FALSE(manager.value_exist("first"));
		EXPECT_EQ("default", manager.get_value("own").as_string()) << "user values stay";
	}
}

TEST(module_config_dispatch, cfg_file_in_the_first_file_redirects_the_others) {
	temporary_directory const directory;
	directory.write("first.cfg", "cfg_file = target.cfg\none = 1\n");
	directory.write("second.cfg", "two = 2\n");
	directory.write("target.cfg", "target = 3\n");
	working_directory const here(directory.root());
	config_manager manager;
	manager.init(module_config_dispatch({"first.cfg", "second.cfg", "missing.cfg"}, nullptr));
	manager.load();
	EXPECT_EQ("1", manager.get_value("one").as_string());
	EXPECT_EQ("3", manager.get_value("target").as_string());
	EXPECT_FALSE(manager.value_exist("two"));
	// From the second load on the first item finds the name too, in its own tree.
	manager.load();
	EXPECT_EQ("1", manager.get_value("one").as_string()) << "a load empties nothing";
	manager.unload();
	manager.load();
	EXPECT_FALSE(manager.value_exist("one")) << "the name found survives the unload";
	EXPECT_EQ("3", manager.get_value("target").as_string());
	EXPECT_FALSE(manager.value_exist("two"));
}

TEST(module_config_dispatch, cfg_file_of_the_environment_redirects_all_files_at_the_second_load) {
	temporary_directory const directory;
	directory.write("first.cfg", "one = 1\n");
	directory.write("second.cfg", "two = 2\n");
	directory.write("target.cfg", "target = 3\n");
	working_directory const here(directory.root());
	char const *const envp[] = {"CFG_FILE=target.cfg", nullptr};
	config_manager manager;
	manager.init(module_config_dispatch({"first.cfg", "second.cfg"}, envp));
	manager.load();
	EXPECT_TRUE(manager.value_exist("one") && manager.value_exist("two"));
	EXPECT_FALSE(manager.value_exist("target"));
	manager.load();
	EXPECT_EQ("3", manager.get_value("target").as_string());
	manager.unload();
	manager.load();
	EXPECT_FALSE(manager.value_exist("one") || manager.value_exist("two"));
	EXPECT_EQ("3", manager.get_value("target").as_string());
}

TEST(module_config_dispatch, user_values_name_the_file_of_the_very_first_load) {
	temporary_directory const directory;
	directory.write("own.cfg", "which = own\n");
	directory.write("other.cfg", "which = other\n");
	config_manager manager;
	manager.init(module_config_dispatch({directory.path("own.cfg")}, nullptr));
	manager.get_config_item("user_item")->set("cfg_file", directory.path("other.cfg"), 0);
	manager.load();
	EXPECT_EQ("other", manager.get_value("which").as_string()) << "user values are there before any load";
}

} // namespace
