#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include <quor/quor.hpp>

namespace {

using quor::generic::abilities::alloc_detection_ability;
using quor::generic::abilities::create_dynamic;

class widget : public alloc_detection_ability {
public:
	explicit widget(std::string text, bool *flag_in_constructor = nullptr) : m_text(std::move(text)) {
		if (flag_in_constructor != nullptr) {
			*flag_in_constructor = is_created_dynamic();
		}
	}
	std::string const &text() const { return m_text; }

private:
	std::string m_text;
};

class unbuildable : public alloc_detection_ability {
public:
	unbuildable() { throw std::runtime_error("no"); }
};

TEST(alloc_detection_ability, default_constructed_is_not_created_dynamic) {
	EXPECT_FALSE(alloc_detection_ability().is_created_dynamic());
	EXPECT_FALSE(widget("local").is_created_dynamic());
}

TEST(alloc_detection_ability, plain_new_is_not_created_dynamic) {
	auto const plain = std::make_unique<widget>("plain");
	EXPECT_FALSE(plain->is_created_dynamic());
}

TEST(alloc_detection_ability, create_dynamic_sets_the_flag_after_the_constructor) {
	bool flag_in_constructor = true;
	std::unique_ptr<widget> const made(create_dynamic<widget>("made", &flag_in_constructor));
	EXPECT_FALSE(flag_in_constructor);
	EXPECT_TRUE(made->is_created_dynamic());
	EXPECT_EQ(made->text(), "made");
}

TEST(alloc_detection_ability, create_dynamic_moves_its_arguments_on) {
	std::string text(100, 'x');
	auto const address = reinterpret_cast<std::uintptr_t>(text.data());
	std::unique_ptr<widget> const made(create_dynamic<widget>(std::move(text)));
	EXPECT_EQ(reinterpret_cast<std::uintptr_t>(made->text().data()), address);
}

TEST(alloc_detection_ability, create_dynamic_lets_the_constructors_exception_through) {
	EXPECT_THROW(create_dynamic<unbuildable>(), std::runtime_error);
}

TEST(alloc_detection_ability, copies_and_assignments_take_the_flag_of_their_source) {
	std::unique_ptr<widget> const made(create_dynamic<widget>("made"));
	widget const copy(*made);
	EXPECT_TRUE(copy.is_created_dynamic());

	widget assigned("local");
	assigned = *made;
	EXPECT_TRUE(assigned.is_created_dynamic());
	assigned = widget("another");
	EXPECT_FALSE(assigned.is_created_dynamic());
}

} // namespace
