#ifndef QUOR_FUNCTOR_DELEGATE_HPP
#define QUOR_FUNCTOR_DELEGATE_HPP

/// @file
/// A nullable, owning handle to something callable: the library's events are delegates.
/// An empty one is skipped without a word.
///
///     quor::functor::delegate_t<void(int)> event;
///     event(1);                                                  // empty: nothing happens
///     event = quor::functor::member_function_t(&object, &listener::on_number);
///     if (event) {
///         event(2);                                              // object.on_number(2)
///     }
///
/// @since 2.9

#include <type_traits>
#include <utility>

#include <quor/functor/function_type_interface.hpp>
#include <quor/types/nil.hpp>

namespace QUOR_2_9::functor {

/// Defined for function types alone, see the specialisation.
/// @since 2.9
template <class F>
class delegate_t;

/// Owns a private heap copy of a callable, or is empty.
///
/// A callable is an object of a class that derives from `function_type_interface`:
/// `member_function_t`, or one of the program's own around a plain function or a lambda.
///
/// Copies clone the callable; a moved-from delegate is empty. A callable may assign to,
/// clear or destroy the delegate that is calling it: it is deleted when its last call
/// has returned. Thread-safety: calls may go on in several threads at once, as far as
/// the callable allows it; a change must not meet any other use of the same delegate.
/// One pointer in size; a call allocates nothing and takes no lock.
/// @since 2.9
template <class Result, class... Arguments>
class delegate_t<Result(Arguments...)> {
public:
	/// The abstract class of the callables.
	using interface_type = function_type_interface<Result(Arguments...)>;

	/// Empty. @since 2.9
	constexpr delegate_t() noexcept = default;

	/// Empty. @since 2.9
	constexpr delegate_t(types::nil_t const &) noexcept {}

	/// Owns a clone of `callable`. @throws what its `clone` throws. @since 2.9
	delegate_t(interface_type const &callable) : m_callable(callable.clone()) {}

	/// Owns a clone of what `other` owns. @throws what the clone throws. @since 2.9
	delegate_t(delegate_t const &other)
	    : m_callable(other.m_callable != nullptr ? other.m_callable->clone() : nullptr) {}

	/// Takes over what `other` owns and leaves it empty. @since 2.9
	delegate_t(delegate_t &&other) noexcept : m_callable(std::exchange(other.m_callable, nullptr)) {}

	/// Deletes the callable. @since 2.9
	~delegate_t() { clear(); }

	/// Deletes the callable and owns a clone of the given one instead, which may be the
	/// one it owned, or a part of it.
	/// @throws what the clone throws, std::bad_alloc above all; the delegate is empty
	///         then, since the old callable has gone.
	/// @since 2.9
	template <class Callable, std::enable_if_t<std::is_base_of_v<interface_type, Callable>, int> = 0>
	delegate_t &operator=(Callable const &callable) {
		owner const old(std::exchange(m_callable, nullptr));
		owner const replaced(std::exchange(m_callable, callable.clone()));
		return *this;
	}

	/// Assigns the callable of `other`, or none; self-assignment does nothing.
	/// @throws what the clone throws; the delegate is empty then. @since 2.9
	delegate_t &operator=(delegate_t const &other) {
		if (this != &other) {
			if (other.m_callable != nullptr) {
				*this = static_cast<interface_type const &>(*other.m_callable);
			} else {
				clear();
			}
		}
		return *this;
	}

	/// Takes over what `other` owns and leaves it empty; moving to itself does nothing.
	/// @since 2.9
	delegate_t &operator=(delegate_t &&other) noexcept {
		if (this != &other) {
			owner const old(std::exchange(m_callable, std::exchange(other.m_callable, nullptr)));
		}
		return *this;
	}

	/// The same as `clear`. @since 2.9
	template <class Nil, std::enable_if_t<std::is_same_v<Nil, types::nil_t>, int> = 0>
	delegate_t &operator=(Nil const &) noexcept {
		clear();
		return *this;
	}

	/// Deletes the callable. @since 2.9
	void clear() noexcept { owner const old(std::exchange(m_callable, nullptr)); }

	/// Whether no callable is owned. @since 2.9
	bool empty() const noexcept { return m_callable == nullptr; }

	/// Whether a callable is owned. @since 2.9
	explicit operator bool() const noexcept { return m_callable != nullptr; }

	/// The callable, or null; it stays the delegate's. @since 2.9
	interface_type const *get() const noexcept { return m_callable; }

	/// Calls the callable and returns its result. An empty delegate is skipped and gives
	/// a value-initialised result; where there is none, as for a reference, test first.
	/// @throws what the callable throws. @since 2.9
	Result operator()(Arguments... arguments) const {
		interface_type const *const callable = m_callable;
		if constexpr (std::is_void_v<Result> || std::is_default_constructible_v<Result>) {
			if (callable == nullptr) {
				return Result();
			}
		}
		if (!callable->m_lifetime.counts_calls()) {
			return (*callable)(std::forward<Arguments>(arguments)...);
		}
		callable->m_lifetime.keep();
		owner const kept(callable);
		return (*callable)(std::forward<Arguments>(arguments)...);
	}

	/// Whether both are empty or own equal callables. @since 2.9
	friend bool operator==(delegate_t const &left, delegate_t const &right) {
		return left.m_callable != nullptr && right.m_callable != nullptr ? left.m_callable->equal(*right.m_callable)
		                                                                 : left.m_callable == right.m_callable;
	}

	/// The opposite of `==`. @since 2.9
	friend bool operator!=(delegate_t const &left, delegate_t const &right) { return !(left == right); }

private:
	/// One reason to keep a callable, given up at the end of its scope.
	class owner {
	public:
		explicit owner(interface_type const *callable) noexcept : m_callable(callable) {}
		owner(owner const &) = delete;
		owner &operator=(owner const &) = delete;
		~owner() {
			if (m_callable != nullptr && m_callable->m_lifetime.let_go()) {
				delete m_callable;
			}
		}

	private:
		interface_type const *m_callable;
	};

	interface_type *m_callable = nullptr;
};

} // namespace QUOR_2_9::functor

#endif
