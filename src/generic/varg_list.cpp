#include <quor/generic/varg_list.hpp>

#include <algorithm>
#include <stdexcept>

#include "support/early_init.hpp"

namespace QUOR_2_9::generic {
namespace {

/// The first argument of that name in a vector, const or not.
template <class Arguments>
auto first_named(Arguments &arguments, strings::ustring8 const &name) noexcept {
	return std::find_if(arguments.begin(), arguments.end(),
	                    [&name](argument const &candidate) noexcept { return candidate.name() == name; });
}

/// The argument at an index of a vector, const or not.
template <class Arguments>
auto &checked(Arguments &arguments, types::uint64 index) {
	if (index >= arguments.size()) {
		throw std::out_of_range("invalid vector<T> subscript");
	}
	return arguments[static_cast<std::size_t>(index)];
}

} // namespace

QUOR_EARLY_INIT argument const varg_list::nil_argument;

varg_list::varg_list() = default;

varg_list::varg_list(argument const &a1, argument const &a2, argument const &a3, argument const &a4, argument const &a5,
                     argument const &a6, argument const &a7, argument const &a8, argument const &a9,
                     argument const &a10, argument const &a11, argument const &a12, argument const &a13,
                     argument const &a14, argument const &a15, argument const &a16, argument const &a17,
                     argument const &a18, argument const &a19, argument const &a20, argument const &a21,
                     argument const &a22, argument const &a23, argument const &a24, argument const &a25,
                     argument const &a26) {
	argument const *const taken[] = {&a1,  &a2,  &a3,  &a4,  &a5,  &a6,  &a7,  &a8,  &a9,  &a10, &a11, &a12, &a13,
	                                 &a14, &a15, &a16, &a17, &a18, &a19, &a20, &a21, &a22, &a23, &a24, &a25, &a26};
	for (argument const *const candidate : taken) {
		if (*candidate == types::nil) {
			return;
		}
		push_back(*candidate);
	}
}

varg_list &varg_list::assign(varg_list const &other) {
	return *this = other;
}

bool varg_list::push_back(argument const &value) {
	if (value.has_name() && has_argument(value.name())) {
		return false;
	}
	m_arguments.push_back(value);
	return true;
}

bool varg_list::push_back(strings::ustring8 const &name, types::variant const &value) {
	if (!name.empty() && has_argument(name)) {
		return false;
	}
	m_arguments.emplace_back(name, value);
	return true;
}

types::uint32 varg_list::size() const noexcept {
	return static_cast<types::uint32>(m_arguments.size());
}

types::uint32 varg_list::count() const noexcept {
	return size();
}

bool varg_list::empty() const noexcept {
	return m_arguments.empty();
}

bool varg_list::equal(types::nil_t const & /*nil*/) const noexcept {
	return empty();
}

bool varg_list::operator==(types::nil_t const & /*nil*/) const noexcept {
	return empty();
}

bool varg_list::operator!=(types::nil_t const & /*nil*/) const noexcept {
	return !empty();
}

void varg_list::clear() noexcept {
	m_arguments.clear();
}

void varg_list::erase() noexcept {
	clear();
}

void varg_list::erase(strings::ustring8 const &name) {
	auto const found = find(name);
	if (found != end()) {
		m_arguments.erase(found);
	}
}

void varg_list::erase(types::uint32 index) {
	erase_element(index);
}

void varg_list::erase(iterator where) {
	m_arguments.erase(where);
}

void varg_list::erase(iterator first, iterator last) {
	m_arguments.erase(first, last);
}

bool varg_list::has_argument(strings::ustring8 const &name) const noexcept {
	return find(name) != end();
}

varg_list::iterator varg_list::find(strings::ustring8 const &name) noexcept {
	return first_named(m_arguments, name);
}

varg_list::const_iterator varg_list::find(strings::ustring8 const &name) const noexcept {
	return first_named(m_arguments, name);
}

varg_list::iterator varg_list::begin() noexcept {
	return m_arguments.begin();
}

varg_list::const_iterator varg_list::begin() const noexcept {
	return m_arguments.begin();
}

varg_list::iterator varg_list::end() noexcept {
	return m_arguments.end();
}

varg_list::const_iterator varg_list::end() const noexcept {
	return m_arguments.end();
}

argument &varg_list::at(types::uint32 index) {
	return element(index);
}

argument const &varg_list::at(types::uint32 index) const {
	return element(index);
}

argument &varg_list::operator[](types::uint32 index) {
	return element(index);
}

argument const &varg_list::operator[](types::uint32 index) const {
	return element(index);
}

argument const &varg_list::at(strings::ustring8 const &name) const noexcept {
	auto const found = find(name);
	return found != end() ? *found : nil_argument;
}

argument const &varg_list::operator[](strings::ustring8 const &name) const noexcept {
	return at(name);
}

argument &varg_list::element(types::uint64 index) {
	return checked(m_arguments, index);
}

argument const &varg_list::element(types::uint64 index) const {
	return checked(m_arguments, index);
}

void varg_list::erase_element(types::uint64 index) {
	if (index < m_arguments.size()) {
		m_arguments.erase(m_arguments.begin() + static_cast<std::ptrdiff_t>(index));
	}
}

} // namespace QUOR_2_9::generic
