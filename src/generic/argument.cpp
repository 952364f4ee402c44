#include <quor/generic/argument.hpp>

namespace QUOR_2_9::generic {

argument::argument() = default;

argument::argument(types::nil_t const & /*nil*/) {}

argument::argument(types::variant const &value) : m_value(value) {}

argument::argument(strings::ustring8 const &name, types::variant const &value) : m_name(name), m_value(value) {}

argument &argument::operator=(types::variant const &value) noexcept {
	return assign(value);
}

argument &argument::assign(types::variant const &value) noexcept {
	m_value = value;
	return *this;
}

argument &argument::operator=(types::nil_t const &nil) {
	return assign(nil);
}

argument &argument::assign(types::nil_t const &nil) {
	m_value = nil;
	m_name.clear();
	return *this;
}

argument &argument::assign(argument const &other) {
	return *this = other;
}

argument &argument::assign(strings::ustring8 const &name, types::variant const &value) {
	m_name = name;
	m_value = value;
	return *this;
}

strings::ustring8 const &argument::name() const noexcept {
	return m_name;
}

strings::ustring8 const &argument::name(strings::ustring8 const &value) {
	m_name = value;
	return m_name;
}

types::variant const &argument::value() const noexcept {
	return m_value;
}

types::variant const &argument::value(types::variant const &value) noexcept {
	m_value = value;
	return m_value;
}

bool argument::has_name() const noexcept {
	return !m_name.empty();
}

bool argument::equal(types::nil_t const &nil) const {
	return !has_name() && m_value == nil;
}

bool argument::operator==(types::nil_t const &nil) const {
	return equal(nil);
}

bool argument::operator!=(types::nil_t const &nil) const {
	return !equal(nil);
}

} // namespace QUOR_2_9::generic
