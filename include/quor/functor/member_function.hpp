#ifndef QUOR_FUNCTOR_MEMBER_FUNCTION_HPP
#define QUOR_FUNCTOR_MEMBER_FUNCTION_HPP

/// @file
/// A member function bound to the object to call it on.
///
///     class listener {
///     public:
///         void on_text(quor::strings::ustring8 const &text);
///     };
///     listener object;
///     quor::functor::delegate_t<void(quor::strings::ustring8 const &)> event;
///     event = quor::functor::member_function_t(&object, &listener::on_text);
///
/// @since 2.9

#include <type_traits>
#include <utility>

#include <quor/functor/function_type_interface.hpp>

namespace QUOR_2_9::functor {

namespace detail {

/// A pointer to a member function of `C` with the signature `F`; for a const `C` to a
/// const one.
template <class C, class F>
struct member_pointer;

template <class C, class Result, class... Arguments>
struct member_pointer<C, Result(Arguments...)> {
	using type = std::conditional_t<std::is_const_v<C>, Result (std::remove_const_t<C>::*)(Arguments...) const,
	                                Result (std::remove_const_t<C>::*)(Arguments...)>;
};

} // namespace detail

/// Defined for function types alone, see the specialisation.
/// @since 2.9
template <class C, class F>
class member_function_t;

/// Calls a member function of an object of class `C`.
///
/// Holds the two pointers and owns nothing: the object must outlive every call. A value;
/// copies call the same object. With a const `C` the member is a const one. The callable
/// may be destroyed or replaced in its delegate while a call of it is on its way.
/// Thread-safety: many callers at once as far as the member function allows it.
/// @since 2.9
template <class C, class Result, class... Arguments>
class member_function_t<C, Result(Arguments...)> final : public function_type_interface<Result(Arguments...)> {
public:
	/// The callable's abstract class.
	using interface_type = function_type_interface<Result(Arguments...)>;
	/// The member function's pointer type.
	using member_type = typename detail::member_pointer<C, Result(Arguments...)>::type;

	/// Binds `member` to `object`; neither may be null when it is called. @since 2.9
	member_function_t(C *object, member_type member) noexcept
	    : interface_type(detail::callable_lifetime(false)), m_object(object), m_member(member) {}

	/// Whether `other` is of this very class and calls the same member on the same
	/// object. @since 2.9
	bool equal(interface_type const &other) const override {
		auto const *const same = dynamic_cast<member_function_t const *>(&other);
		return same != nullptr && same->m_object == m_object && same->m_member == m_member;
	}

	/// A new heap copy; the caller owns it. @since 2.9
	member_function_t *clone() const override { return new member_function_t(*this); }

	/// Calls the member on the object and returns its result. @since 2.9
	Result operator()(Arguments... arguments) const override {
		return (m_object->*m_member)(std::forward<Arguments>(arguments)...);
	}

private:
	C *m_object;
	member_type m_member;
};

/// Finds the class and the signature from the two pointers; the member may be one of a
/// base class.
template <class C, class Base, class Result, class... Arguments>
member_function_t(C *, Result (Base::*)(Arguments...)) -> member_function_t<C, Result(Arguments...)>;

/// Finds the class and the signature from the two pointers, for a const member.
template <class C, class Base, class Result, class... Arguments>
member_function_t(C *, Result (Base::*)(Arguments...) const) -> member_function_t<C const, Result(Arguments...)>;

} // namespace QUOR_2_9::functor

#endif
