#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"

namespace {

using quor::config::commandline_item;
using quor::config::config_dispatch;
using quor::config::config_manager;
using quor::config::enviroment_item;
using quor::config::file_item;
using quor::config::std_config_dispatch;
using quor::config::user_item;
using quor::strings::ustring8;
using quor::types::nil;
using quor_test::temporary_directory;
using quor_test::working_directory;

using item_list = config_dispatch::item_list;

std::vector<std::string> ids_of(item_list const &items) {
	std::vector<std::string> ids;
	for (auto const &item : items) {
		ids.push_back(item->get_id());
	}
	return ids;
}

// What the three items were made from.
struct made_from {
	int argc;
	char const *const *argv;
	std::string file;
	char const *const *envp;
	bool operator==(made_from const &other) const {
		return argc == other.argc && argv == other.argv && file == other.file && envp == other.envp;
	}
};

made_from setup_of(std_config_dispatch const &dispatch) {
	item_list items;
	dispatch.setup(items);
	auto const &command_line = dynamic_cast<commandline_item const &>(*items.front());
	auto const &file = dynamic_cast<file_item const &>(**std::next(items.begin()));
	auto const &environment = dynamic_cast<enviroment_item const &>(*items.back());
	return {command_line.get_argc(), command_line.get_argv(), file.get_filename(), environment.get_envp()};
}

char const *const some_argv[] = {"program.exe", "-a=1", nullptr};
char const *const some_envp[] = {"HOME=/home", nullptr};

TEST(std_config_dispatch, has_no_public_default_constructor) {
	static_assert(!std::is_default_constructible_v<std_config_dispatch>);
	static_assert(std::is_copy_constructible_v<std_config_dispatch>);
	static_assert(std::is_copy_assignable_v<std_config_dispatch>);
	static_assert(!std::is_abstract_v<std_config_dispatch>);
	static_assert(std::is_constructible_v<std_config_dispatch, int, char **, char **, char const *, char const *>);
}

TEST(std_config_dispatch, setup_appends_command_line_file_and_environment) {
	std_config_dispatch const dispatch(2, some_argv, some_envp, "program.cfg", "second");
	item_list items;
	items.push_back(quor::generic::abilities::create_dynamic<user_item>());
	dispatch.setup(items);
	EXPECT_EQ((std::vector<std::string>{"user item", "command line", "standard file", "enviroment"}), ids_of(items));
	for (auto const &item : items) {
		EXPECT_EQ(1u, item->get_ref_count());
		EXPECT_TRUE(item->is_created_dynamic());
		EXPECT_EQ(nullptr, item->get_value("a")) << "nothing is loaded";
		EXPECT_EQ(nullptr, item->get_value("home"));
	}
	dispatch.setup(items);
	EXPECT_EQ(7u, items.size());
}

TEST(std_config_dispatch, fields_reach_the_items) {
	EXPECT_EQ((made_from{2, some_argv, "program.cfg", some_envp}),
	          setup_of(std_config_dispatch(2, some_argv, some_envp, "program.cfg", "second")));
	EXPECT_EQ((made_from{-1, nullptr, "", nullptr}), setup_of(std_config_dispatch(-1, nullptr, nullptr, "", "")));
}

TEST(std_config_dispatch, copies_have_all_fields) {
	std_config_dispatch const dispatch(2, some_argv, some_envp, "program.cfg", "second");
	made_from const expected = setup_of(dispatch);
	EXPECT_EQ(expected, setup_of(std_config_dispatch(dispatch)));
	std_config_dispatch assigned(0, nullptr, nullptr, "other.cfg", "");
	assigned = dispatch;
	EXPECT_EQ(expected, setup_of(assigned));
	std_config_dispatch const &same = assigned;
	assigned = same;
	EXPECT_EQ(expected, setup_of(assigned));
	std::unique_ptr<config_dispatch> const clone(dispatch.clone());
	ASSERT_NE(nullptr, dynamic_cast<std_config_dispatch *>(clone.get()));
	EXPECT_EQ(expected, setup_of(dynamic_cast<std_config_dispatch &>(*clone)));
}

TEST(std_config_dispatch, counts_below_one_are_no_arguments) {
	for (int const argc : {0, -1, -2147483647 - 1}) {
		config_manager manager;
		manager.init(std_config_dispatch(argc, some_argv, nullptr, "", ""));
		EXPECT_TRUE(manager.load());
		EXPECT_FALSE(manager.value_exist("a")) << argc;
	}
}

TEST(std_config_dispatch, nothing_at_all_loads) {
	temporary_directory const directory;
	working_directory const here(directory.root());
	config_manager manager;
	manager.init(std_config_dispatch(0, nullptr, nullptr, "", ""));
	EXPECT_TRUE(manager.load());
	EXPECT_TRUE(manager.save());
	EXPECT_TRUE(manager.unload());
	EXPECT_TRUE(std::filesystem::is_empty(directory.root()));
}

TEST(std_config_dispatch, precedence_is_command_line_file_environment) {
	temporary_directory const directory;
	directory.write("x.cfg", "file=file\nboth=file\nall=file\nlist[]=f,g\n");
	char const *const argv[] = {"p.exe", "-all=command", "-list=scalar", nullptr};
	char const *const envp[] = {"ALL=environment", "BOTH=environment", "OWN=environment", nullptr};
	config_manager manager;
	manager.init(std_config_dispatch(3, argv, envp, directory.path("x.cfg"), ""));
	EXPECT_TRUE(manager.get_value("all") == nil) << "not loaded yet";
	for (int round = 0; round != 2; ++round) {
		ASSERT_TRUE(manager.load());
		EXPECT_EQ("command", manager.get_value("all").as_string());
		EXPECT_EQ("file", manager.get_value("both").as_string());
		EXPECT_EQ("file", manager.get_value("file").as_string());
		EXPECT_EQ("environment", manager.get_value("own").as_string());
		EXPECT_EQ("scalar", manager.get_value("list").as_string());
		EXPECT_TRUE(manager.is_array("list"));
		EXPECT_EQ("p", manager.get_value("application.name.raw").as_string());
		ASSERT_TRUE(manager.unload());
		for (char const *key : {"all", "both", "file", "own", "list", "application.name"}) {
			EXPECT_FALSE(manager.value_exist(key)) << key;
		}
	}
}

class std_config_dispatch_files : public testing::Test {
protected:
	void SetUp() override {
		m_directory.write("given.cfg", "which = given\n");
		m_directory.write("named.cfg", "which = named\n");
		m_directory.write("program.cfg", "which = program\n");
	}

	// Loads until the second time and tells which file each load came to.
	std::string files(std::vector<std::string> const &arguments, std::vector<std::string> const &environment,
	                  ustring8 const &config_file) {
		std::vector<char const *> argv{"program.exe"};
		argv.reserve(arguments.size() + 2);
		for (std::string const &argument : arguments) {
			argv.push_back(argument.c_str());
		}
		argv.push_back(nullptr);
		std::vector<char const *> envp;
		envp.reserve(environment.size() + 1);
		for (std::string const &entry : environment) {
			envp.push_back(entry.c_str());
		}
		envp.push_back(nullptr);
		working_directory const here(m_directory.root());
		config_manager manager;
		manager.init(std_config_dispatch(static_cast<int>(argv.size()) - 1, argv.data(), envp.data(), config_file,
		                                 "never read"));
		manager.load();
		std::string result = manager.get_value("which").as_string();
		manager.load();
		result += " " + manager.get_value("which").as_string();
		manager.unload();
		auto const item = manager.get_config_item("standard file");
		return result + " " + dynamic_cast<file_item const &>(*item).get_filename();
	}

	temporary_directory m_directory;
};

TEST_F(std_config_dispatch_files, are_sought_among_what_was_loaded_before) {
	struct row {
		std::vector<std::string> arguments;
		std::vector<std::string> environment;
		char const *config_file;
		char const *expected;
	};
	std::vector<row> const rows{
	    {{}, {}, "given.cfg", "given given given.cfg"},
	    {{}, {}, "", "program program program.cfg"},
	    {{"-cfg_file=named.cfg"}, {}, "", "named named named.cfg"},
	    {{"-cfg_file=named.cfg"}, {}, "given.cfg", "named named named.cfg"},
	    {{"-cfg_file=missing.cfg"}, {}, "given.cfg", "given given given.cfg"},
	    {{"-cfg_file=missing.cfg"}, {}, "", "program program program.cfg"},
	    // The environment is loaded behind the file, and so is seen by the second load only.
	    {{}, {"CFG_FILE=named.cfg"}, "given.cfg", "given named named.cfg"},
	    {{}, {"CFG_FILE=named.cfg"}, "", "program named named.cfg"},
	    {{}, {"CFG_FILE=missing.cfg"}, "", "program program program.cfg"},
	    {{"-cfg_file=given.cfg"}, {"CFG_FILE=named.cfg"}, "", "given given given.cfg"},
	    {{"-cfg_file=missing.cfg"}, {"CFG_FILE=named.cfg"}, "given.cfg", "given named named.cfg"},
	    // A file that is missing is silent; the name stays.
	    {{}, {}, "missing.cfg", "  missing.cfg"},
	};
	for (row const &each : rows) {
		EXPECT_EQ(each.expected, files(each.arguments, each.environment, each.config_file)) << each.expected;
	}
}

TEST_F(std_config_dispatch_files, second_name_is_never_opened) {
	working_directory const here(m_directory.root());
	config_manager manager;
	manager.init(std_config_dispatch(0, nullptr, nullptr, "missing.cfg", "given.cfg"));
	manager.load();
	EXPECT_FALSE(manager.value_exist("which"));
}

TEST_F(std_config_dispatch_files, save_through_the_manager_writes_nothing) {
	std::string const before = "[section]\r\nkey = old # kept\r\n";
	m_directory.write("saved.cfg", before);
	config_manager manager;
	manager.init(std_config_dispatch(0, nullptr, nullptr, m_directory.path("saved.cfg"), ""));
	manager.load();
	auto const item = manager.get_config_item("standard file");
	item->set("section.key", "new value", 0);
	EXPECT_TRUE(manager.save());
	EXPECT_EQ(before, m_directory.read("saved.cfg"));
	EXPECT_TRUE(item->save());
	EXPECT_EQ("[section]\r\nkey=\"new value\"\r\n\r\n", m_directory.read("saved.cfg"));
}

} // namespace
