#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::generic::abilities::clone_ability;

class marked : public clone_ability {
public:
	explicit marked(int &destroyed) : m_destroyed(destroyed) {}
	marked(marked const &) = default;
	~marked() override { ++m_destroyed; }

private:
	int &m_destroyed;
};

TEST(clone_ability, destructor_is_virtual) {
	int destroyed = 0;
	std::unique_ptr<clone_ability> object = std::make_unique<marked>(destroyed);
	object.reset();
	EXPECT_EQ(destroyed, 1);
}

TEST(clone_ability, object_is_one_table_pointer) {
	EXPECT_EQ(sizeof(clone_ability), sizeof(void *));
	EXPECT_TRUE(std::has_virtual_destructor_v<clone_ability>);
	EXPECT_FALSE(std::is_abstract_v<clone_ability>);
}

TEST(clone_ability, assignment_gives_the_object_itself) {
	clone_ability first;
	clone_ability const second(first);
	EXPECT_EQ(&(first = second), &first);
}

} // namespace
