#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::generic::clone_interface;

class point : public clone_interface {
public:
	point(int x, int &destroyed) : m_x(x), m_destroyed(destroyed) {}
	point(point const &) = default;
	~point() override { ++m_destroyed; }
	point *clone() const override { return new point(*this); }
	int x() const { return m_x; }

private:
	int m_x;
	int &m_destroyed;
};

TEST(clone_interface, clone_is_a_new_object_with_the_same_contents) {
	int destroyed = 0;
	std::unique_ptr<clone_interface> const source = std::make_unique<point>(5, destroyed);
	std::unique_ptr<clone_interface> copy(source->clone());
	ASSERT_NE(copy.get(), source.get());
	auto const *const copied = dynamic_cast<point const *>(copy.get());
	ASSERT_NE(copied, nullptr);
	EXPECT_EQ(copied->x(), 5);
	copy.reset();
	EXPECT_EQ(destroyed, 1);
}

TEST(clone_interface, is_an_abstract_clone_ability) {
	EXPECT_TRUE(std::is_abstract_v<clone_interface>);
	EXPECT_TRUE((std::is_base_of_v<quor::generic::abilities::clone_ability, clone_interface>));
	EXPECT_EQ(sizeof(clone_interface), sizeof(void *));
}

} // namespace
