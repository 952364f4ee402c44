#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::generic::abilities::create_ability;

class marked : public create_ability {
public:
	explicit marked(int &destroyed) : m_destroyed(destroyed) {}
	marked(marked const &) = default;
	~marked() override { ++m_destroyed; }

private:
	int &m_destroyed;
};

TEST(create_ability, destructor_is_virtual) {
	int destroyed = 0;
	std::unique_ptr<create_ability> object = std::make_unique<marked>(destroyed);
	object.reset();
	EXPECT_EQ(destroyed, 1);
}

TEST(create_ability, object_is_one_table_pointer) {
	EXPECT_EQ(sizeof(create_ability), sizeof(void *));
	EXPECT_TRUE(std::has_virtual_destructor_v<create_ability>);
	EXPECT_FALSE(std::is_abstract_v<create_ability>);
}

TEST(create_ability, assignment_gives_the_object_itself) {
	create_ability first;
	create_ability const second(first);
	EXPECT_EQ(&(first = second), &first);
}

} // namespace
