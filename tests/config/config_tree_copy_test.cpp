// Copies, assignment and destruction of the tree of keys.

#include <cstring>
#include <sstream>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <quor/config/config_tree.hpp>
#include <quor/generic/abilities/alloc_detection_ability.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/types/nil.hpp>

namespace {

using QUOR_2_9::config::config_tree;
using QUOR_2_9::generic::abilities::create_dynamic;
using QUOR_2_9::strings::ustring8;
using pointer = QUOR_2_9::memory::pointers::rc_pointer<config_tree>;

std::string dump_of(config_tree const &tree) {
	std::ostringstream out;
	out << tree.node_data.first << ' ' << tree.node_data.second.as_string() << '\n' << tree;
	return out.str();
}

config_tree sample() {
	config_tree tree(9, "root");
	tree.set_node("a.b.c", 1, 0);
	tree.set_node("a.b.d", "text", 6);
	tree.set_node("a", 2, 2);
	tree.set_node("z", QUOR_2_9::types::nil, 0);
	return tree;
}

// No two nodes of the trees are the same object, and each is held once.
void expect_nothing_shared(config_tree const &left, config_tree const &right) {
	ASSERT_EQ(left.children.size(), right.children.size());
	for (auto const &[name, child] : left.children) {
		config_tree const &other = *right.children.find(name)->second;
		EXPECT_NE(child.get(), &other) << name;
		EXPECT_EQ(child->get_ref_count(), 1u) << name;
		EXPECT_EQ(other.get_ref_count(), 1u) << name;
		EXPECT_TRUE(child->is_created_dynamic() && other.is_created_dynamic()) << name;
		expect_nothing_shared(*child, other);
	}
}

TEST(config_tree_copy, copies_are_deep) {
	config_tree source = sample();
	config_tree const copy(source);
	EXPECT_EQ(dump_of(copy), dump_of(source));
	expect_nothing_shared(source, copy);
	std::string const before = dump_of(copy);
	source.set_node("a.b.c", 99, 0);
	source.set_node("a.new", 1, 0);
	source.erase();
	EXPECT_EQ(dump_of(copy), before);
}

TEST(config_tree_copy, copies_are_held_by_nobody) {
	pointer const held(create_dynamic<config_tree>(sample()));
	EXPECT_EQ(held->get_ref_count(), 1u);
	config_tree const copy(*held);
	EXPECT_EQ(copy.get_ref_count(), 0u);
	EXPECT_FALSE(copy.is_created_dynamic());
	EXPECT_EQ(dump_of(copy), dump_of(*held));
}

TEST(config_tree_copy, clone_is_a_dynamic_copy) {
	config_tree const source = sample();
	static_assert(std::is_same_v<decltype(source.clone()), config_tree *>);
	config_tree *const made = source.clone();
	EXPECT_EQ(made->get_ref_count(), 0u);
	EXPECT_TRUE(made->is_created_dynamic());
	pointer const clone(made);
	EXPECT_EQ(dump_of(*clone), dump_of(source));
	expect_nothing_shared(source, *clone);
}

TEST(config_tree_copy, assignment_replaces_contents_and_keeps_count_and_mark) {
	config_tree const source = sample();
	pointer const target(create_dynamic<config_tree>());
	pointer const second = target; // NOLINT(performance-unnecessary-copy-initialization): it counts
	target->set_node("old", 1, 0);
	EXPECT_EQ(&(*target = source), target.get());
	EXPECT_EQ(dump_of(*target), dump_of(source));
	expect_nothing_shared(source, *target);
	EXPECT_EQ(target->get_ref_count(), 2u);
	EXPECT_TRUE(target->is_created_dynamic());
	config_tree local;
	local = *target;
	EXPECT_EQ(local.get_ref_count(), 0u);
	EXPECT_FALSE(local.is_created_dynamic());
}

TEST(config_tree_copy, self_assignment_changes_nothing) {
	config_tree tree = sample();
	config_tree::node_value const *const node = tree.get_node("a.b");
	std::string const before = dump_of(tree);
	config_tree const &self = tree;
	tree = self;
	EXPECT_EQ(dump_of(tree), before);
	EXPECT_EQ(tree.get_node("a.b"), node);
}

TEST(config_tree_copy, a_tree_can_become_a_part_of_itself) {
	config_tree tree = sample();
	config_tree const expected(*tree.children["a"]->children["b"]);
	tree = *tree.children["a"]->children["b"];
	EXPECT_EQ(dump_of(tree), dump_of(expected));
}

TEST(config_tree_copy, a_part_can_become_the_tree) {
	config_tree tree = sample();
	config_tree const expected(tree);
	*tree.children["a"]->children["b"] = tree;
	EXPECT_EQ(dump_of(*tree.children["a"]->children["b"]), dump_of(expected));
	EXPECT_EQ(tree.get_node("a.b.a.b.c")->second.as_int(), 1);
}

// What a copy throws at a null child, as text.
template <class Operation>
std::string thrown_by(Operation operation) {
	try {
		operation();
	} catch (char const *text) {
		return text;
	}
	return "nothing";
}

TEST(config_tree_copy, a_null_child_can_not_be_copied) {
	for (char const *const place : {"", "a", "a.b", "a.b.c"}) {
		config_tree source = sample();
		config_tree *node = &source;
		for (std::size_t i = 0; i < std::strlen(place); i += 2) {
			node = node->children[ustring8(1, place[i])].get();
		}
		node->children["null"] = nullptr;
		EXPECT_EQ(thrown_by([&] { config_tree{source}; }), "unreferanced object") << place;
		EXPECT_EQ(thrown_by([&] { pointer const clone(source.clone()); }), "unreferanced object") << place;
		config_tree target;
		target.set_node("old.key", 1, 0);
		std::string const before = dump_of(target);
		EXPECT_EQ(thrown_by([&] { target = source; }), "unreferanced object") << place;
		EXPECT_EQ(dump_of(target), before) << place;
	}
}

TEST(config_tree_copy, nodes_that_others_hold_survive) {
	pointer held;
	pointer below;
	{
		config_tree tree;
		tree.set_node("a.b.c.d", "deep", 0);
		held = tree.children["a"]->children["b"];
		below = held->children["c"];
		EXPECT_EQ(held->get_ref_count(), 2u);
	}
	EXPECT_EQ(held->get_ref_count(), 1u);
	EXPECT_EQ(below->get_ref_count(), 2u);
	EXPECT_EQ(held->get_node("c.d")->second.as_string(), "deep");
	held = nullptr;
	EXPECT_EQ(below->get_ref_count(), 1u);
	EXPECT_EQ(below->get_node("d")->second.as_string(), "deep");
}

TEST(config_tree_copy, erase_and_assignment_leave_nodes_that_others_hold) {
	config_tree tree = sample();
	pointer const erased = tree.children["a"];
	tree.erase();
	EXPECT_EQ(erased->get_ref_count(), 1u);
	EXPECT_EQ(erased->get_node("b.c")->second.as_int(), 1);
	tree = sample();
	pointer const replaced = tree.children["a"]->children["b"];
	tree = config_tree();
	EXPECT_EQ(replaced->get_ref_count(), 1u);
	EXPECT_EQ(replaced->get_node("c")->second.as_int(), 1);
}

TEST(config_tree_copy, nodes_on_the_stack_survive_the_tree) {
	config_tree local;
	local.set_node("x.y", 1, 0);
	{
		config_tree tree;
		tree.children["local"] = &local;
		EXPECT_EQ(local.get_ref_count(), 1u);
		EXPECT_EQ(tree.get_node("local.x.y")->second.as_int(), 1);
	}
	EXPECT_EQ(local.get_ref_count(), 0u);
	EXPECT_EQ(local.get_node("x.y")->second.as_int(), 1);
}

TEST(config_tree_copy, a_node_in_two_trees_is_shared) {
	config_tree first;
	first.set_node("a.b.c", 1, 0);
	{
		config_tree second;
		second.children["same"] = first.children["a"];
		second.set_node("same.b.c", 2, 0);
		EXPECT_EQ(first.get_node("a.b.c")->second.as_int(), 2);
		config_tree const copy(second);
		EXPECT_NE(copy.get_node("same.b.c"), second.get_node("same.b.c"));
	}
	EXPECT_EQ(first.children["a"]->get_ref_count(), 1u);
	EXPECT_EQ(first.get_node("a.b.c")->second.as_int(), 2);
}

} // namespace
