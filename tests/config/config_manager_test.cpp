#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "config/listed_items.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor::config::base_config_item;
using quor::config::config_dispatch;
using quor::config::config_manager;
using quor::config::user_item;
using quor::generic::varg_list;
using quor::strings::ustring8;
using quor::types::nil;
using quor::types::variant;
using quor_test::listed_items;

using item_pointer = quor::memory::pointers::rc_pointer<base_config_item>;
using name_value = std::pair<ustring8, variant>;

constexpr unsigned int reference = 4;

config_manager manager_of(listed_items const &sources) {
	config_manager manager;
	manager.init(sources);
	return manager;
}

// "nil", or the text of the value.
std::string shown(variant const &value) {
	return value == nil ? "nil" : value.as_string();
}

void append(std::string &list, std::string const &part) {
	if (!list.empty()) {
		list.push_back(' ');
	}
	list.append(part);
}

// The elements, with blanks between them.
std::string array_of(config_manager const &manager, ustring8 const &key) {
	std::vector<variant> out;
	manager.get_array(key, out);
	std::string result;
	for (variant const &value : out) {
		append(result, shown(value));
	}
	return result;
}

// The pairs as "name=value", with blanks between them.
std::string listing_of(config_manager const &manager, ustring8 const &key, bool recursive) {
	std::vector<name_value> out;
	manager.get_key_value_array(key, out, recursive);
	std::string result;
	for (name_value const &entry : out) {
		append(result, entry.first + "=" + shown(entry.second));
	}
	return result;
}

std::string dumped(config_manager const &manager) {
	std::ostringstream stream;
	manager.dump(stream);
	return stream.str();
}

// Counts the dispatches that are alive, and what was called on them.
struct dispatch_log {
	int alive = 0;
	int loads = 0;
	int saves = 0;
	int unloads = 0;
};

class logged_dispatch : public config_dispatch {
public:
	explicit logged_dispatch(dispatch_log &log) : m_log(&log) { ++m_log->alive; }
	logged_dispatch(logged_dispatch const &other) : config_dispatch(other), m_log(other.m_log) { ++m_log->alive; }
	logged_dispatch &operator=(logged_dispatch const &) = delete;
	~logged_dispatch() override { --m_log->alive; }

	void setup(item_list &items) const override {
		items.push_back(quor::generic::abilities::create_dynamic<user_item>());
		items.back()->set("made", 1, 0);
	}
	void load(item_list & /*items*/) const override { ++m_log->loads; }
	void unload(item_list & /*items*/) const override { ++m_log->unloads; }
	void save(item_list & /*items*/) const override { ++m_log->saves; }
	logged_dispatch *clone() const override { return new logged_dispatch(*this); }

private:
	dispatch_log *m_log;
};

TEST(config_manager_states, before_init_everything_is_empty) {
	config_manager manager;
	config_manager const &queries = manager;
	EXPECT_TRUE(queries.get_value("a.b") == nil);
	EXPECT_TRUE(queries.get_value("") == nil);
	EXPECT_FALSE(queries.value_exist("a.b"));
	EXPECT_FALSE(queries.is_array("a"));
	std::vector<variant> values{variant(7)};
	queries.get_array("a", values);
	EXPECT_EQ(1u, values.size());
	std::vector<name_value> pairs{{"x", variant(7)}};
	queries.get_key_value_array("a", pairs, true);
	EXPECT_EQ(1u, pairs.size());
	EXPECT_TRUE(queries.get_config_item("").empty());
	EXPECT_FALSE(manager.load());
	EXPECT_FALSE(manager.save());
	EXPECT_FALSE(manager.unload());
	EXPECT_EQ("config_manager:\n\nno more config_items!\n\nending output\n", dumped(manager));
}

TEST(config_manager_states, init_sets_up_and_loads_nothing) {
	dispatch_log log;
	{
		config_manager manager;
		manager.init(logged_dispatch(log));
		EXPECT_EQ(1, log.alive) << "the manager has a copy of its own";
		EXPECT_EQ(0, log.loads);
		EXPECT_EQ("1", shown(manager.get_value("made")));
		EXPECT_TRUE(manager.load());
		EXPECT_TRUE(manager.load());
		EXPECT_TRUE(manager.save());
		EXPECT_TRUE(manager.unload());
		EXPECT_EQ(2, log.loads);
		EXPECT_EQ(1, log.saves);
		EXPECT_EQ(1, log.unloads);
	}
	EXPECT_EQ(0, log.alive);
}

TEST(config_manager_states, second_init_replaces_dispatch_and_items) {
	dispatch_log first;
	dispatch_log second;
	config_manager manager;
	manager.init(logged_dispatch(first));
	manager.get_config_item("user item")->set("old", 1, 0);
	manager.init(logged_dispatch(second));
	EXPECT_EQ(0, first.alive);
	EXPECT_EQ(1, second.alive);
	EXPECT_FALSE(manager.value_exist("old"));
	manager.load();
	EXPECT_EQ(0, first.loads);
	EXPECT_EQ(1, second.loads);
	EXPECT_EQ(std::string::npos, dumped(manager).find("config_item:", dumped(manager).find("config_item:") + 1))
	    << "one item, not two";
}

// Gives its manager's own dispatch to whoever asks.
class own_dispatch : public config_dispatch {
public:
	explicit own_dispatch(std::vector<config_dispatch const *> &set_up) : m_set_up(&set_up) {}
	void setup(item_list &items) const override {
		m_set_up->push_back(this);
		items.push_back(quor::generic::abilities::create_dynamic<user_item>());
		items.back()->set("name", m_name, 0);
	}
	own_dispatch *clone() const override { return new own_dispatch(*this); }

private:
	std::vector<config_dispatch const *> *m_set_up;
	ustring8 m_name = "a text that is too long for a short string";
};

TEST(config_manager_states, init_with_its_own_dispatch_is_safe) {
	std::vector<config_dispatch const *> set_up;
	config_manager manager;
	manager.init(own_dispatch(set_up));
	for (std::size_t round = 1; round != 4; ++round) {
		ASSERT_EQ(round, set_up.size());
		manager.init(*set_up.back());
		EXPECT_EQ("a text that is too long for a short string", shown(manager.get_value("name")));
	}
}

struct refused {};

enum class refusal { at_clone, at_setup };

class refusing_dispatch : public config_dispatch {
public:
	explicit refusing_dispatch(refusal when) : m_when(when) {}
	void setup(item_list &items) const override {
		items.push_back(quor::generic::abilities::create_dynamic<user_item>());
		throw refused();
	}
	refusing_dispatch *clone() const override {
		if (m_when == refusal::at_clone) {
			throw refused();
		}
		return new refusing_dispatch(*this);
	}

private:
	refusal m_when;
};

TEST(config_manager_states, failing_init_changes_nothing) {
	for (refusal const when : {refusal::at_clone, refusal::at_setup}) {
		dispatch_log log;
		config_manager manager;
		manager.init(logged_dispatch(log));
		item_pointer const item = manager.get_config_item("user item");
		EXPECT_THROW(manager.init(refusing_dispatch(when)), refused);
		EXPECT_EQ(1, log.alive);
		EXPECT_TRUE(manager.get_config_item("user item") == item);
		EXPECT_TRUE(manager.load());
		EXPECT_EQ(1, log.loads);

		config_manager empty;
		EXPECT_THROW(empty.init(refusing_dispatch(when)), refused);
		EXPECT_FALSE(empty.load());
		EXPECT_TRUE(empty.get_config_item("user item").empty());
	}
}

class null_clone : public config_dispatch {
public:
	void setup(item_list & /*items*/) const override {}
	null_clone *clone() const override { return nullptr; }
};

TEST(config_manager_states, dispatch_that_clones_to_null_counts_as_none) {
	dispatch_log log;
	config_manager manager;
	manager.init(logged_dispatch(log));
	manager.init(null_clone());
	EXPECT_EQ(0, log.alive);
	EXPECT_FALSE(manager.load());
	EXPECT_FALSE(manager.value_exist("made"));
}

TEST(config_manager_copies, share_items_and_dispatch) {
	dispatch_log log;
	config_manager manager;
	manager.init(logged_dispatch(log));
	{
		// NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is tested
		config_manager const copy(manager);
		EXPECT_EQ(1, log.alive);
		EXPECT_TRUE(copy.get_config_item("user item") == manager.get_config_item("user item"));
		manager.get_config_item("user item")->set("later", "x", 0);
		EXPECT_EQ("x", shown(copy.get_value("later")));
		config_manager third(copy);
		EXPECT_TRUE(third.load());
		EXPECT_EQ(1, log.loads);
	}
	EXPECT_EQ(1, log.alive) << "both may be destroyed";
	EXPECT_TRUE(manager.load());
	EXPECT_EQ(2, log.loads);
}

TEST(config_manager_copies, init_on_one_leaves_the_other_alone) {
	dispatch_log first;
	dispatch_log second;
	config_manager manager;
	manager.init(logged_dispatch(first));
	config_manager copy(manager);
	manager.init(logged_dispatch(second));
	EXPECT_EQ(1, first.alive);
	EXPECT_EQ(1, second.alive);
	EXPECT_FALSE(copy.get_config_item("user item") == manager.get_config_item("user item"));
	EXPECT_EQ("1", shown(copy.get_value("made")));
	EXPECT_TRUE(copy.load());
	EXPECT_EQ(1, first.loads);
	EXPECT_TRUE(manager.load());
	EXPECT_EQ(1, second.loads);
}

TEST(config_manager_copies, copy_outlives_its_source) {
	dispatch_log log;
	config_manager copy;
	{
		config_manager manager;
		manager.init(logged_dispatch(log));
		copy = manager;
	}
	EXPECT_EQ(1, log.alive);
	EXPECT_TRUE(copy.unload());
	EXPECT_EQ(1, log.unloads);
	EXPECT_EQ("1", shown(copy.get_value("made")));
}

TEST(config_manager_copies, assignment_gives_up_what_the_target_had) {
	dispatch_log first;
	dispatch_log second;
	{
		config_manager manager;
		manager.init(logged_dispatch(first));
		item_pointer const old = manager.get_config_item("user item");
		config_manager other;
		other.init(logged_dispatch(second));
		manager = other;
		EXPECT_EQ(0, first.alive);
		EXPECT_EQ(1, second.alive);
		EXPECT_EQ(1u, old->get_ref_count()) << "the list let go of it";
		config_manager const empty;
		other = empty;
		EXPECT_EQ(1, second.alive);
		EXPECT_FALSE(other.load());
		EXPECT_FALSE(other.value_exist("made"));
		EXPECT_TRUE(manager.load());
	}
	EXPECT_EQ(0, second.alive);
}

TEST(config_manager_copies, self_assignment_is_harmless) {
	dispatch_log log;
	config_manager manager;
	manager.init(logged_dispatch(log));
	item_pointer const item = manager.get_config_item("user item");
	config_manager const &same = manager;
	manager = same;
	EXPECT_EQ(1, log.alive);
	EXPECT_TRUE(manager.get_config_item("user item") == item);
	EXPECT_TRUE(manager.load());
	config_manager nothing;
	config_manager const &also_nothing = nothing;
	nothing = also_nothing;
	EXPECT_FALSE(nothing.load());
}

TEST(config_manager_copies, derived_managers_are_destroyed_through_their_base) {
	static_assert(std::has_virtual_destructor_v<config_manager>);
	static_assert(!std::is_abstract_v<config_manager>);
}

TEST(get_value, first_item_with_the_key_wins) {
	listed_items sources;
	user_item &high = sources.add();
	user_item &low = sources.add();
	high.set("both", "high", 0);
	low.set("both", "low", 0);
	low.set("only.low", 5, 0);
	low.set("empty", "", 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("high", shown(manager.get_value("both")));
	EXPECT_EQ("5", shown(manager.get_value("only.low")));
	EXPECT_EQ(5, manager.get_value("ONLY/Low").as_int());
	EXPECT_TRUE(manager.get_value("only.low").type() == typeid(int)) << "the value as it was stored";
	EXPECT_EQ("nil", shown(manager.get_value("none")));
	EXPECT_TRUE(manager.value_exist("only\\low"));
	EXPECT_TRUE(manager.value_exist("empty")) << "an empty text is a value";
	EXPECT_FALSE(manager.value_exist("none"));
}

TEST(get_value, passage_node_hides_values_of_later_items) {
	listed_items sources;
	user_item &high = sources.add();
	user_item &low = sources.add();
	high.set("a.b", "deep", 0);
	low.set("a", 1, 0);
	low.set("x", 2, 0);
	high.set("x", variant(), 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("nil", shown(manager.get_value("a")));
	EXPECT_FALSE(manager.value_exist("a"));
	EXPECT_FALSE(manager.value_exist("x")) << "so does a value of nil";
	EXPECT_EQ("deep", shown(manager.get_value("a.b")));
}

TEST(get_value, array_gives_its_first_element) {
	listed_items sources;
	user_item &item = sources.add();
	item.set_array("list", varg_list("first", "second"), varg_list());
	item.set("bare", variant(), 2);
	item.set("part.1", "x", 0);
	item.set("part", variant(), 2);
	user_item &low = sources.add();
	low.set("bare.0", "low", 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("first", shown(manager.get_value("list")));
	EXPECT_EQ("first", shown(manager.get_value("LIST")));
	EXPECT_EQ("second", shown(manager.get_value("list.1")));
	EXPECT_EQ("nil", shown(manager.get_value("bare"))) << "element 0 of another item isn't looked for";
	EXPECT_EQ("nil", shown(manager.get_value("part")));
	EXPECT_EQ("nil", shown(manager.get_value("list."))) << "asks for list..0";
	EXPECT_EQ("first", shown(manager.get_value("list.0")));
	EXPECT_EQ("first", shown(manager.get_value("list.0."))) << "but a separator at the end of a value doesn't matter";
}

TEST(get_value, array_whose_key_ends_in_a_separator_has_its_elements_below_an_empty_name) {
	listed_items sources;
	user_item &item = sources.add();
	item.set_array("list.", varg_list("first", "second"), varg_list());
	item.set_array("", varg_list("nameless"), varg_list());
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("first", shown(manager.get_value("list.")));
	EXPECT_EQ("nil", shown(manager.get_value("list")));
	EXPECT_EQ("nameless", shown(manager.get_value("")));
	EXPECT_EQ("", array_of(manager, "list."));
	EXPECT_EQ("nameless", array_of(manager, ""));
	EXPECT_EQ("nil", shown(manager.get_value("."))) << "the same node, but asks for ..0";
}

TEST(get_value, array_test_comes_before_the_reference_test) {
	listed_items sources;
	user_item &item = sources.add();
	item.set("both", "target", 2 | reference);
	item.set("both.0", "element", 0);
	item.set("target", "value", 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("element", shown(manager.get_value("both")));
	EXPECT_TRUE(manager.is_array("both"));
}

TEST(get_value, element_0_is_returned_as_it_is) {
	listed_items sources;
	user_item &item = sources.add();
	item.set("list", variant(), 2);
	item.set("list.0", "target", reference);
	item.set("nested", variant(), 2);
	item.set("nested.0", "own", 2);
	item.set("nested.0.0", "inner", 0);
	item.set("target", "value", 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("target", shown(manager.get_value("list"))) << "not followed";
	EXPECT_EQ("value", shown(manager.get_value("list.0"))) << "asked for itself it is a reference";
	EXPECT_EQ("target", array_of(manager, "list"));
	EXPECT_EQ("own", shown(manager.get_value("nested")));
	EXPECT_EQ("inner", shown(manager.get_value("nested.0")));
}

TEST(get_value, other_flags_mean_nothing) {
	listed_items sources;
	user_item &item = sources.add();
	item.set("eight", "x", 8);
	item.set("array", variant(), 0xFFFFFFF2u);
	item.set("array.0", "element", 0xFFFFFFF8u);
	item.set("reference", "eight", 0x80000004u);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("x", shown(manager.get_value("eight")));
	EXPECT_EQ("element", shown(manager.get_value("array")));
	EXPECT_EQ("x", shown(manager.get_value("reference")));
}

TEST(references, lead_from_the_first_item_on) {
	listed_items sources;
	user_item &high = sources.add();
	user_item &low = sources.add();
	low.set("link", "Target.Of\\it", reference);
	low.set("target.of.it", "low", 0);
	high.set("target.of.it", "high", 0);
	low.set("to_array", "list", reference);
	low.set_array("list", varg_list("a", "b"), varg_list());
	low.set("to_nothing", "nothing", reference);
	low.set("to_passage", "target", reference);
	low.set("to_link", "link", reference);
	low.set("number", 7, reference);
	low.set("7", "seven", 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("high", shown(manager.get_value("link")));
	EXPECT_EQ("a", shown(manager.get_value("to_array")));
	EXPECT_EQ("nil", shown(manager.get_value("to_nothing")));
	EXPECT_EQ("nil", shown(manager.get_value("to_passage")));
	EXPECT_FALSE(manager.value_exist("to_nothing"));
	EXPECT_EQ("high", shown(manager.get_value("to_link")));
	EXPECT_EQ("seven", shown(manager.get_value("number")));
	EXPECT_EQ("", array_of(manager, "to_array")) << "only get_value follows";
	EXPECT_FALSE(manager.is_array("to_array"));
}

TEST(references, cycle_gives_the_stored_value) {
	listed_items sources;
	user_item &item = sources.add();
	item.set("a", "b", reference);
	item.set("b", "a", reference);
	item.set("self", "self", reference);
	item.set("tail", "a", reference);
	item.set("", "", reference);
	item.set("nil", variant(), reference);
	item.set("8", 8, reference);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("a", shown(manager.get_value("a"))) << "stored at b";
	EXPECT_EQ("b", shown(manager.get_value("b")));
	EXPECT_EQ("self", shown(manager.get_value("self")));
	EXPECT_EQ("a", shown(manager.get_value("tail"))) << "tail, a, b, and b holds a";
	EXPECT_EQ("", shown(manager.get_value("")));
	EXPECT_EQ("", shown(manager.get_value("nil"))) << "the empty key, which leads to itself";
	EXPECT_TRUE(manager.get_value("8").type() == typeid(int)) << "a copy of the value, not of its text";
}

TEST(references, names_are_compared_byte_for_byte) {
	listed_items sources;
	user_item &item = sources.add();
	item.set("a", "B", reference);
	item.set("b", "a", reference);
	config_manager const manager = manager_of(sources);
	// A, B, a, and then a holds B again.
	EXPECT_EQ("B", shown(manager.get_value("A")));
	EXPECT_EQ("a", shown(manager.get_value("a")));
	EXPECT_EQ("a", shown(manager.get_value("b"))) << "b, a, B, and then b holds a again";
	EXPECT_EQ("a", shown(manager.get_value("b."))) << "b., a, B, and b holds a again";
}

TEST(references, long_chains_are_followed) {
	constexpr int length = 30000;
	listed_items sources;
	user_item &item = sources.add();
	auto const name = [](int i) { return ustring8("a key with a name that is not short " + std::to_string(i)); };
	for (int i = 0; i != length; ++i) {
		item.set(name(i), name(i + 1), reference);
	}
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("nil", shown(manager.get_value(name(0))));
	item.set(name(length), "end", 0);
	EXPECT_EQ("end", shown(manager.get_value(name(0))));
	item.set(name(length), name(1), reference);
	EXPECT_EQ(name(1), shown(manager.get_value(name(0))));
}

TEST(arrays, are_found_behind_items_without_them) {
	listed_items sources;
	user_item &high = sources.add();
	user_item &middle = sources.add();
	user_item &low = sources.add();
	high.set("list", "scalar", 0);
	high.set("list.0", "no element", 0);
	middle.set_array("list", varg_list("a", "b", "c"), varg_list());
	low.set_array("list", varg_list("x"), varg_list());
	low.set_array("empty", varg_list(), varg_list());
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("scalar", shown(manager.get_value("list")));
	EXPECT_TRUE(manager.is_array("list"));
	EXPECT_TRUE(manager.is_array("LIST."));
	EXPECT_FALSE(manager.is_array("list.0"));
	EXPECT_FALSE(manager.is_array("none"));
	EXPECT_FALSE(manager.is_array(""));
	EXPECT_EQ("a b c", array_of(manager, "list"));
	EXPECT_EQ("a b c", array_of(manager, "List."));
	EXPECT_EQ("", array_of(manager, "list.0"));
	EXPECT_TRUE(manager.is_array("empty"));
	EXPECT_EQ("", array_of(manager, "empty"));
	std::vector<variant> out{variant("kept")};
	manager.get_array("list", out);
	manager.get_array("none", out);
	manager.get_array("list", out);
	ASSERT_EQ(7u, out.size());
	EXPECT_EQ("kept", shown(out[0]));
	EXPECT_EQ("a", shown(out[4]));
}

TEST(arrays, need_both_flags) {
	listed_items sources;
	user_item &item = sources.add();
	item.set("scalar.0", 0, 0);
	item.set("flagged", variant(), 6);
	config_manager const manager = manager_of(sources);
	EXPECT_FALSE(manager.is_array("scalar")) << "a passage node";
	EXPECT_TRUE(manager.is_array("flagged"));
	EXPECT_EQ("nil", shown(manager.get_value("flagged")));
}

TEST(key_value_arrays, come_from_the_first_item_with_the_key) {
	listed_items sources;
	user_item &high = sources.add();
	user_item &low = sources.add();
	high.set("s.b", 2, 0);
	high.set("s.a.deep", 1, 0);
	low.set("s.c", 3, 0);
	low.set("t.d", 4, 0);
	high.set("t", "a value, with nothing below", 0);
	low.set("only.e", 5, 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("a=nil b=2", listing_of(manager, "s", false));
	EXPECT_EQ("a=nil a.deep=1 b=2", listing_of(manager, "s", true));
	EXPECT_EQ("deep=1", listing_of(manager, "S\\A", true));
	EXPECT_EQ("deep=1", listing_of(manager, "s.a.", true));
	EXPECT_EQ("", listing_of(manager, "t", true)) << "the first item decides, whatever its flags";
	EXPECT_EQ("e=5", listing_of(manager, "only", true));
	EXPECT_EQ("", listing_of(manager, "none", true));
	EXPECT_EQ("", listing_of(manager, "", true)) << "not all keys";
	EXPECT_EQ("", listing_of(manager, ".", true));
	std::vector<name_value> out{{"kept", variant(0)}};
	manager.get_key_value_array("s", out, false);
	manager.get_key_value_array("none", out, false);
	ASSERT_EQ(3u, out.size());
	EXPECT_EQ("kept", out[0].first);
	EXPECT_EQ("b", out[2].first);
	EXPECT_EQ(2, out[2].second.as_int());
}

TEST(key_value_arrays, empty_key_lists_an_item_that_has_an_empty_name) {
	listed_items sources;
	sources.add().set("z", 1, 0);
	user_item &item = sources.add();
	item.set("a", 2, 0);
	item.set(".b.c", 3, 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ("=nil a=2", listing_of(manager, "", false));
	EXPECT_EQ("=nil b=nil b.c=3 a=2", listing_of(manager, "", true));
	EXPECT_EQ("b=nil b.c=3", listing_of(manager, ".", true)) << "below the empty name";
}

TEST(key_value_arrays, arguments_may_be_part_of_the_result) {
	listed_items sources;
	user_item &item = sources.add();
	item.set("a long name that needs memory of its own.x", 1, 0);
	config_manager const manager = manager_of(sources);
	std::vector<name_value> out{{"a long name that needs memory of its own", variant(0)}};
	out.shrink_to_fit();
	manager.get_key_value_array(out[0].first, out, false);
	ASSERT_EQ(2u, out.size());
	EXPECT_EQ("x", out[1].first);
}

TEST(get_config_item, finds_the_first_of_that_id) {
	listed_items sources;
	user_item &first = sources.add();
	sources.add();
	item_pointer const copy(first.clone());
	sources.add(copy);
	config_manager const manager = manager_of(sources);
	EXPECT_TRUE(manager.get_config_item("user item") == &first);
	EXPECT_TRUE(manager.get_config_item("user_item") == copy);
	EXPECT_TRUE(manager.get_config_item("User item").empty());
	EXPECT_TRUE(manager.get_config_item("").empty());
	manager.get_config_item("user_item")->set("new", "value", 0);
	EXPECT_EQ("value", shown(manager.get_value("new"))) << "shared, not copied";
	manager.get_config_item("user_item")->set("new = other text", 0);
	EXPECT_EQ("othertext", shown(manager.get_value("new")));
}

TEST(null_pointers, are_passed_over) {
	listed_items sources;
	sources.add_null();
	user_item &item = sources.add();
	sources.add_null();
	item.set("a", 1, 0);
	item.set("link", "a", reference);
	item.set_array("list", varg_list("x"), varg_list());
	config_manager manager = manager_of(sources);
	EXPECT_TRUE(manager.load());
	EXPECT_TRUE(manager.save());
	EXPECT_TRUE(manager.unload());
	EXPECT_EQ("1", shown(manager.get_value("link")));
	EXPECT_EQ("nil", shown(manager.get_value("none")));
	EXPECT_TRUE(manager.is_array("list"));
	EXPECT_EQ("x", array_of(manager, "list"));
	EXPECT_EQ("0=x", listing_of(manager, "list", true));
	EXPECT_TRUE(manager.get_config_item("user item") == &item);
	EXPECT_TRUE(manager.get_config_item("none").empty());
	EXPECT_EQ("config_manager:\n\nconfig_item:\n", dumped(manager).substr(0, 30));
	EXPECT_EQ(std::string::npos, dumped(manager).find("config_item:", 30));
}

TEST(null_pointers, are_passed_over_by_a_file_that_seeks_its_name) {
	quor_test::temporary_directory const directory;
	directory.write("found.cfg", "key = value\n");
	listed_items sources;
	sources.add_null();
	sources.add(item_pointer(quor::generic::abilities::create_dynamic<quor::config::file_item>("")));
	sources.add_null();
	sources.add().set("cfg_file", directory.path("found.cfg"), 0);
	config_manager manager = manager_of(sources);
	EXPECT_TRUE(manager.load());
	EXPECT_EQ("value", shown(manager.get_value("key")));
}

TEST(dump, has_every_byte_as_told) {
	listed_items sources;
	user_item &first = sources.add();
	first.set("a.b", 1, 0);
	first.set("c", "text", 0);
	first.set_array("list", varg_list("x"), varg_list());
	sources.add(item_pointer(user_item().clone()));
	config_manager const manager = manager_of(sources);
	std::string const expected = "config_manager:\n"
	                             "\n"
	                             "config_item:\n"
	                             "object : user item\n"
	                             "|---------------\\\n"
	                             "|\t\ta : true\n"
	                             "|\t\t|---------------\\\n"
	                             "|\t\t|\t\tb : 1 1\n"
	                             "|\t\t|\t\t|\n"
	                             "|\t\t|\t\tend\n"
	                             "|\t\tc : 1 text\n"
	                             "|\t\t|\n"
	                             "|\t\tlist : 3 \n"
	                             "|\t\t|---------------\\\n"
	                             "|\t\t|\t\t0 : 1 x\n"
	                             "|\t\t|\t\t|\n"
	                             "|\t\t|\t\tend\n"
	                             "|\t\tend\n"
	                             "end\n"
	                             "\n"
	                             "config_item:\n"
	                             "object : user_item\n"
	                             "|---------------\\\n"
	                             "|\t\tend\n"
	                             "end\n"
	                             "\n"
	                             "no more config_items!\n"
	                             "\n"
	                             "ending output\n";
	EXPECT_EQ(expected, dumped(manager));
	std::ostringstream stream;
	stream << manager << manager;
	EXPECT_EQ(expected + expected, stream.str());
}

TEST(queries, take_texts_of_every_kind_as_keys) {
	listed_items sources;
	sources.add().set("a.b", 1, 0);
	config_manager const manager = manager_of(sources);
	EXPECT_EQ(1, manager.get_value("a.b").as_int());
	EXPECT_EQ(1, manager.get_value(std::string("a.b")).as_int());
	EXPECT_EQ(1, manager.get_value(ustring8("a.b")).as_int());
	EXPECT_TRUE(manager.value_exist(std::string("a.b")));
	EXPECT_FALSE(manager.is_array(std::string("a.b")));
}

} // namespace
