// One loaded manager read by several threads at once. Meant for the thread sanitizer too.

#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <quor/config/config_manager.hpp>
#include <quor/config/std_config_dispatch.hpp>
#include <quor/generic/varg_list.hpp>

namespace {

namespace quor = QUOR_2_9;

using quor::config::config_manager;
using quor::config::std_config_dispatch;
using quor::strings::ustring8;
using quor::types::variant;

config_manager loaded_manager() {
	static char const *const argv[] = {"program.exe", "-server.port=8080", "-hosts=alpha,beta", nullptr};
	static char const *const envp[] = {"HOME=/home/a user with quite a long name", "server.log=4", nullptr};
	config_manager manager;
	manager.init(std_config_dispatch(3, argv, envp, "", ""));
	manager.load();
	auto const item = manager.get_config_item("standard file");
	item->set("link", "SERVER.LOG", 4);
	item->set("round", "about and around it goes", 4);
	item->set("about and around it goes", "round", 4);
	return manager;
}

std::string dumped(config_manager const &manager) {
	std::ostringstream stream;
	stream << manager;
	return stream.str();
}

TEST(config_manager_threads, one_loaded_manager_is_read_at_once) {
	config_manager const manager = loaded_manager();
	std::string const expected = dumped(manager);
	std::vector<std::thread> threads;
	for (int i = 0; i != 4; ++i) {
		threads.emplace_back([&] {
			for (int round = 0; round != 200; ++round) {
				EXPECT_EQ(8080, manager.get_value("server.port").as_int());
				EXPECT_EQ(4, manager.get_value("link").as_int());
				EXPECT_EQ("round", manager.get_value("round").as_string());
				EXPECT_TRUE(manager.value_exist("home"));
				EXPECT_TRUE(manager.is_array("hosts"));
				std::vector<variant> hosts;
				manager.get_array("hosts", hosts);
				EXPECT_EQ(2u, hosts.size());
				std::vector<std::pair<ustring8, variant>> server;
				manager.get_key_value_array("server", server, true);
				EXPECT_EQ(1u, server.size());
				EXPECT_EQ("enviroment", manager.get_config_item("enviroment")->get_id());
				// NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is tested
				config_manager const copy(manager);
				EXPECT_EQ("alpha", copy.get_value("hosts").as_string());
				config_manager assigned;
				assigned = copy;
				EXPECT_EQ(expected, dumped(assigned));
			}
		});
	}
	for (std::thread &thread : threads) {
		thread.join();
	}
}

} // namespace
