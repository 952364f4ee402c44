// A module that uses the library, for the test that loads and unloads both.

#include <quor/quor.hpp>

namespace {

using callback = quor::functor::function_type_interface<void(char const *const, char const *const, unsigned int &)>;

// Counts its destructions in the program that loaded the module.
class counted_callback : public callback {
public:
	explicit counted_callback(int *destroyed) : m_destroyed(destroyed) {}
	~counted_callback() override { ++*m_destroyed; }
	bool equal(callback const & /*other*/) const override { return false; }
	counted_callback *clone() const override { return new counted_callback(*this); }
	void operator()(char const *const /*first*/, char const *const /*second*/, unsigned int &value) const override {
		++value;
	}

private:
	int *m_destroyed;
};

} // namespace

// Puts a callback into the library and uses some of the library's classes; gives what a
// call of the callback made of 41.
extern "C" __attribute__((visibility("default"))) unsigned int use_quor(int *destroyed) {
	namespace i18n = quor::i18n;
	quor::debug::_private::g_assert_callback = counted_callback(destroyed);
	quor::generic::varg_list const list(quor::generic::argument("n", 41), "text", 2.5);
	auto value = static_cast<unsigned int>(list["n"].value().as_int());
	quor::debug::_private::g_assert_callback("one", "two", value);
	try {
		quor::generic::convert::str_to_int("99999999999", 0, 10, true);
	} catch (quor::exceptions::overflow_error const &) {
		return value + static_cast<unsigned int>(i18n::_private::format_int(7, "").size()) - 1;
	}
	return 0;
}
