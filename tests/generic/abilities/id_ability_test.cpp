#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::generic::abilities::id_ability;
using quor::types::address_id;

class job : public id_ability {
public:
	using id_ability::id_ability;
};

address_id address_of(id_ability const &object) {
	return static_cast<address_id>(reinterpret_cast<std::uintptr_t>(&object));
}

TEST(id_ability, default_id_is_the_whole_address) {
	id_ability const first;
	job const second;
	EXPECT_EQ(first.id(), address_of(first));
	EXPECT_EQ(second.id(), address_of(second));
	EXPECT_NE(first.id(), second.id());
	EXPECT_EQ(sizeof(address_id), sizeof(void *));
}

TEST(id_ability, given_id_is_kept) {
	for (address_id const id : {address_id(0), address_id(7), std::numeric_limits<address_id>::max()}) {
		EXPECT_EQ(id_ability(id).id(), id);
	}
}

TEST(id_ability, copy_and_assignment_take_the_id_of_the_source) {
	job const source;
	job const copy(source);
	EXPECT_EQ(copy.id(), source.id());
	EXPECT_NE(copy.id(), address_of(copy));
	job assigned(5);
	assigned = source;
	EXPECT_EQ(assigned.id(), address_of(source));
}

TEST(id_ability, setting_gives_the_new_id) {
	job object;
	address_id const wanted = 99;
	EXPECT_EQ(object.id(wanted), wanted);
	EXPECT_EQ(object.id(), wanted);
	EXPECT_EQ(object.id(object.id()), wanted);
}

TEST(id_ability, has_no_virtual_functions) {
	EXPECT_FALSE(std::is_polymorphic_v<id_ability>);
	EXPECT_EQ(sizeof(id_ability), sizeof(void *));
}

} // namespace
