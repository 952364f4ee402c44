// What the questions to a manager ask of the heap, and what is left when memory is short.

#include <cstddef>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <quor/config/config_manager.hpp>
#include <quor/config/module_config_dispatch.hpp>
#include <quor/config/std_config_dispatch.hpp>
#include <quor/generic/varg_list.hpp>

#include "config/listed_items.hpp"
#include "support/allocation_counter.hpp"

namespace {

namespace quor = QUOR_2_9;

using quor::config::config_manager;
using quor::config::module_config_dispatch;
using quor::config::std_config_dispatch;
using quor::generic::varg_list;
using quor::strings::ustring8;
using quor::types::variant;
using quor_test::allocation_counter;
using quor_test::allocation_failure;
using quor_test::listed_items;

// Three items, of which the last has the key.
config_manager three_items() {
	listed_items sources;
	for (int i = 0; i != 3; ++i) {
		auto &item = sources.add();
		item.set("server.log.other", i, 0);
		item.set("another section with a long name.key", i, 0);
		if (i == 2) {
			item.set("server.log.level", "1234567", 0);
			item.set("server.log.some component with a long name", 7, 0);
			item.set_array("server.log.array with a long name", varg_list("a", "b"), varg_list());
			item.set("link", "server.log.level", 4);
		}
	}
	config_manager manager;
	manager.init(sources);
	return manager;
}

template <class Call>
std::size_t allocations(Call const &call) {
	allocation_counter const counter;
	call();
	return counter.count();
}

TEST(config_manager_allocations, look_ups_take_nothing) {
	config_manager const manager = three_items();
	ustring8 const key("server.log.level");
	ustring8 const long_key("Server/LOG\\Some Component With A Long Name");
	ustring8 const missing("server.log.no such key in any of the items");
	ustring8 const array("server.log.array with a long name");
	EXPECT_EQ(0u, allocations([&] { EXPECT_EQ(1234567, manager.get_value(key).as_int()); }));
	EXPECT_EQ(0u, allocations([&] { EXPECT_EQ(1234567u, manager.get_value(key).as_uint64()); }));
	EXPECT_EQ(0u, allocations([&] { EXPECT_EQ(7, manager.get_value(long_key).as_int()); }));
	EXPECT_EQ(0u, allocations([&] { EXPECT_TRUE(manager.value_exist(long_key)); }));
	EXPECT_EQ(0u, allocations([&] { EXPECT_FALSE(manager.is_array(long_key)); }));
	EXPECT_EQ(0u, allocations([&] { EXPECT_TRUE(manager.is_array(array)); }));
	EXPECT_EQ(0u, allocations([&] { EXPECT_FALSE(manager.is_array(missing)); }));
	EXPECT_EQ(0u, allocations([&] { EXPECT_EQ(7u, manager.get_value(key).as_string().size()); }))
	    << "a short text needs no memory of its own";
}

TEST(config_manager_allocations, look_ups_that_find_nothing_take_nothing) {
	config_manager const manager = three_items();
	ustring8 const missing("server.log.no such key in any of the items");
	// The nil that is returned may need a holder of its own.
	std::size_t const nil = allocations([] { variant const value; });
	EXPECT_EQ(nil, allocations([&] { EXPECT_EQ(0, manager.get_value(missing).as_int()); }));
	EXPECT_EQ(nil, allocations([&] { EXPECT_FALSE(manager.value_exist(missing)); }));
}

TEST(config_manager_allocations, first_element_of_an_array_takes_nothing) {
	config_manager const manager = three_items();
	ustring8 const array("server.log.array with a long name");
	EXPECT_EQ(0u, allocations([&] { EXPECT_EQ(1u, manager.get_value(array).as_string().size()); }));
}

// The bytes that following a chain of references takes.
std::size_t bytes_of_chain(int length) {
	listed_items sources;
	auto &item = sources.add();
	auto const name = [](int i) { return ustring8("a key with a name that is long " + std::to_string(i + 10000)); };
	for (int i = 0; i != length; ++i) {
		item.set(name(i), name(i + 1), 4);
	}
	item.set(name(length), "end", 0);
	config_manager manager;
	manager.init(sources);
	ustring8 const first = name(0);
	allocation_counter const counter;
	EXPECT_EQ("end", manager.get_value(first).as_string());
	return counter.bytes();
}

TEST(config_manager_allocations, chains_of_references_are_linear) {
	std::size_t const once = bytes_of_chain(2048);
	EXPECT_LE(bytes_of_chain(4096), once * 23 / 10);
}

// Runs `operation` with every allocation failing once, until it succeeds.
template <class Operation, class Check>
void with_failures(Operation const &operation, Check const &unchanged) {
	std::size_t index = 0;
	for (bool failed = true; failed; ++index) {
		ASSERT_LT(index, 10000u);
		try {
			allocation_failure const failure(index);
			operation();
			failed = failure.happened();
			ASSERT_FALSE(failed) << "a failure was swallowed";
		} catch (std::bad_alloc const &) {
			unchanged();
		}
	}
	EXPECT_GT(index, 1u) << "nothing was allocated at all";
}

TEST(config_manager_memory, failing_init_and_assignment_change_nothing) {
	static char const *const argv[] = {"a program with a long name.exe", nullptr};
	std_config_dispatch const program(1, argv, nullptr, "a file with a name that is long.cfg", "second");
	module_config_dispatch const module(varg_list("a file with a name that is long.cfg", "other.cfg"), nullptr);
	allocation_counter const counter;
	for (quor::config::config_dispatch const *dispatch :
	     {static_cast<quor::config::config_dispatch const *>(&program),
	      static_cast<quor::config::config_dispatch const *>(&module)}) {
		config_manager manager = three_items();
		auto const unchanged = [&] {
			EXPECT_EQ(1234567, manager.get_value("server.log.level").as_int());
			EXPECT_TRUE(manager.save());
		};
		with_failures([&] { manager.init(*dispatch); }, unchanged);
		EXPECT_FALSE(manager.get_config_item("standard file").empty());
		config_manager const other = three_items();
		config_manager target;
		target.init(*dispatch);
		with_failures([&] { target = other; }, [&] { EXPECT_FALSE(target.get_config_item("standard file").empty()); });
		EXPECT_EQ(1234567, target.get_value("server.log.level").as_int());
	}
	EXPECT_EQ(0, counter.live());
}

TEST(config_manager_memory, failing_queries_append_nothing) {
	config_manager const manager = three_items();
	ustring8 const array("server.log.array with a long name");
	std::vector<variant> values{variant(1)};
	values.shrink_to_fit();
	with_failures([&] { manager.get_array(array, values); }, [&] { EXPECT_EQ(1u, values.size()); });
	EXPECT_EQ(3u, values.size());
	std::vector<std::pair<ustring8, variant>> pairs{{"kept", variant(1)}};
	pairs.shrink_to_fit();
	with_failures([&] { manager.get_key_value_array("server.log", pairs, true); },
	              [&] { EXPECT_EQ(1u, pairs.size()); });
	EXPECT_EQ(2u, pairs.size()) << "the first item has one key";
	ustring8 const link("link");
	with_failures([&] { EXPECT_EQ(1234567, manager.get_value(link).as_int()); }, [] {});
}

TEST(config_manager_memory, failing_copies_of_dispatches_change_nothing) {
	std_config_dispatch program(1, nullptr, nullptr, "a file with a name that is long.cfg", "another long second name");
	std_config_dispatch const other(0, nullptr, nullptr, "another file with a long name.cfg",
	                                "a second name, also long");
	module_config_dispatch module(varg_list("a file with a name that is long.cfg", "other.cfg"), nullptr);
	module_config_dispatch const third(varg_list("another file with a long name.cfg"), nullptr);
	with_failures([&] { program = other; }, [] {});
	with_failures([&] { module = third; }, [] {});
	with_failures([&] { delete program.clone(); }, [] {});
	with_failures([&] { delete module.clone(); }, [] {});
	quor::config::config_dispatch::item_list items;
	with_failures([&] { program.setup(items); }, [&] { EXPECT_TRUE(items.empty()); });
	with_failures([&] { module.setup(items); }, [&] { EXPECT_EQ(3u, items.size()); });
	EXPECT_EQ(6u, items.size());
}

} // namespace
