#ifndef QUOR_FUNCTOR_FUNCTION_TYPE_INTERFACE_HPP
#define QUOR_FUNCTOR_FUNCTION_TYPE_INTERFACE_HPP

/// @file
/// The abstract callable that a `delegate_t` owns. `member_function_t` is the one that
/// the library brings; programs derive their own for everything else.
///
///     using event = void(int);
///     class printer : public quor::functor::function_type_interface<event> {
///     public:
///         bool equal(function_type_interface const &other) const override {
///             return dynamic_cast<printer const *>(&other) != nullptr;
///         }
///         printer *clone() const override { return new printer(*this); }
///         void operator()(int value) const override { std::cout << value; }
///     };
///
/// @since 2.9

#include <atomic>

#include <quor/generic/abilities/clone_ability.hpp>
#include <quor/traits/function_traits.hpp>

namespace QUOR_2_9::functor {

template <class F>
class delegate_t;

namespace detail {

/// The number of reasons to keep a callable: one for the delegate that owns it, one for
/// each call that is on its way. So a callable may replace itself in its delegate while
/// it runs. A copy of a callable starts anew.
class callable_lifetime {
public:
	/// A callable that stays in use until its calls have returned.
	callable_lifetime() noexcept = default;
	/// With false, a callable whose calls touch nothing of it once they have begun, so
	/// that they needn't be counted.
	explicit callable_lifetime(bool counts_calls) noexcept : m_counts_calls(counts_calls) {}
	/// Starts anew.
	callable_lifetime(callable_lifetime const &other) noexcept : m_counts_calls(other.m_counts_calls) {}
	/// Keeps its own state.
	callable_lifetime &operator=(callable_lifetime const &) noexcept { return *this; }

	/// Whether calls have to be counted.
	bool counts_calls() const noexcept {
		return m_counts_calls; // NOLINT(clang-analyzer-cplusplus.NewDelete): it can't follow the count
	}
	/// Another reason to keep the callable.
	void keep() const noexcept { m_reasons.fetch_add(1, std::memory_order_relaxed); }
	/// One reason less; whether it was the last.
	bool let_go() const noexcept { return m_reasons.fetch_sub(1, std::memory_order_acq_rel) == 1; }

private:
	mutable std::atomic<int> m_reasons{1};
	bool m_counts_calls = true;
};

} // namespace detail

/// Defined for function types alone, see the specialisation.
/// @since 2.9
template <class F>
class function_type_interface;

/// Something that can be called with the arguments of a function type, compared and
/// copied without knowing what it is.
///
/// Thread-safety: the derived class's own; a delegate adds no lock.
/// @since 2.9
template <class Result, class... Arguments>
class function_type_interface<Result(Arguments...)> : public generic::abilities::clone_ability,
                                                      public traits::function_traits<Result(Arguments...)> {
public:
	/// Whether both call the same thing; false, never a failure, for two callables of
	/// different classes. @since 2.9
	virtual bool equal(function_type_interface const &other) const = 0;

	/// A new heap copy; the caller owns it and deletes it. @since 2.9
	virtual function_type_interface *clone() const = 0;

	/// The call. @since 2.9
	virtual Result operator()(Arguments... arguments) const = 0;

	/// The same as `equal`. @since 2.9
	bool operator==(function_type_interface const &other) const { return equal(other); }

	/// The opposite of `equal`. @since 2.9
	bool operator!=(function_type_interface const &other) const { return !equal(other); }

protected:
	/// A callable that is kept while one of its calls is on its way. @since 2.9
	function_type_interface() noexcept = default;

	/// With `detail::callable_lifetime(false)`, a callable whose calls touch none of its
	/// members once they have begun. @since 2.9
	explicit function_type_interface(detail::callable_lifetime const &lifetime) noexcept : m_lifetime(lifetime) {}

private:
	template <class F>
	friend class delegate_t;

	detail::callable_lifetime m_lifetime;
};

} // namespace QUOR_2_9::functor

#endif
