#include <gtest/gtest.h>

#include <list>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

namespace {

using quor::config::base_config_item;
using quor::config::config_dispatch;
using quor::config::module_config_dispatch;
using quor::config::std_config_dispatch;
using quor::generic::abilities::create_dynamic;

using item_pointer = quor::memory::pointers::rc_pointer<base_config_item>;

// Writes down what is called on it.
class logged_item : public base_config_item {
public:
	logged_item(std::string name, std::vector<std::string> &log) : m_name(std::move(name)), m_log(&log) {}

	using base_config_item::load;
	using base_config_item::save;
	bool load(item_list const &items) override { return note("load", items); }
	bool save(item_list const &items) override { return note("save", items); }
	void unload() override { m_log->push_back(m_name + " unload"); }
	logged_item *clone() const override { return create_dynamic<logged_item>(*this); }

private:
	bool note(std::string const &what, item_list const &items) {
		m_log->push_back(m_name + " " + what + " with " + std::to_string(items.size()));
		return m_name != "first";
	}

	std::string m_name;
	std::vector<std::string> *m_log;
};

// Sets up nothing and adds nothing else.
class plain_dispatch : public config_dispatch {
public:
	void setup(item_list & /*items*/) const override {}
	plain_dispatch *clone() const override { return new plain_dispatch(*this); }
};

TEST(config_dispatch, is_an_abstract_base) {
	static_assert(std::is_abstract_v<config_dispatch>);
	static_assert(std::has_virtual_destructor_v<config_dispatch>);
	static_assert(std::is_base_of_v<quor::generic::abilities::clone_ability, config_dispatch>);
	static_assert(
	    std::is_same_v<std::list<quor::memory::pointers::rc_pointer<base_config_item>>, config_dispatch::item_list>);
	static_assert(std::is_base_of_v<config_dispatch, std_config_dispatch>);
	static_assert(std::is_base_of_v<config_dispatch, module_config_dispatch>);
}

// All dispatches treat the items alike.
class config_dispatch_operations : public testing::TestWithParam<config_dispatch const *> {};

TEST_P(config_dispatch_operations, reach_each_item_in_the_order_of_the_list) {
	config_dispatch const &dispatch = *GetParam();
	std::vector<std::string> log;
	config_dispatch::item_list items;
	items.push_back(create_dynamic<logged_item>("first", log));
	items.emplace_back();
	items.push_back(create_dynamic<logged_item>("second", log));
	dispatch.load(items);
	dispatch.save(items);
	dispatch.unload(items);
	EXPECT_EQ((std::vector<std::string>{"first load with 3", "second load with 3", "first save with 3",
	                                    "second save with 3", "first unload", "second unload"}),
	          log);
	EXPECT_EQ(3u, items.size());
}

TEST_P(config_dispatch_operations, are_content_with_an_empty_list) {
	config_dispatch::item_list items;
	GetParam()->load(items);
	GetParam()->save(items);
	GetParam()->unload(items);
	EXPECT_TRUE(items.empty());
}

plain_dispatch const plain;
std_config_dispatch const program(0, nullptr, nullptr, "", "");
module_config_dispatch const module(quor::generic::varg_list(), nullptr);

INSTANTIATE_TEST_SUITE_P(all, config_dispatch_operations,
                         testing::Values<config_dispatch const *>(&plain, &program, &module));

} // namespace
