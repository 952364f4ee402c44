// The least that a shared value of any type can be: a virtual holder with an atomic count.

#include <atomic>
#include <vector>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include "variant/competition.hpp"

namespace variant_bench {
namespace {

struct holder {
	virtual ~holder() = default;
	std::atomic<int> count{0};
};

struct int_holder : holder {
	explicit int_holder(int number) : value(number) {}
	int value;
};

void intrusive_ptr_add_ref(holder *held) noexcept {
	held->count.fetch_add(1, std::memory_order_relaxed);
}

void intrusive_ptr_release(holder *held) noexcept {
	if (held->count.fetch_sub(1, std::memory_order_acq_rel) == 1) {
		delete held;
	}
}

using pointer = boost::intrusive_ptr<holder>;

void describe() {
	std::vector<pointer> values;
	for (int const number : numbers()) {
		values.emplace_back(new int_holder(number));
	}
	char const *const name = "boost::intrusive_ptr";
	measure(copy_name, name, values, [](pointer const &value) { return pointer(value); });
	measure(make_name, name, numbers(), [](int value) { return pointer(new int_holder(value)); });
}

bench::entry const added(&describe);

} // namespace
} // namespace variant_bench
