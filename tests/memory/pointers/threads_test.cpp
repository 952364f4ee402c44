// What several threads may do with counted objects at once. Meant for the thread
// sanitizer too.

#include "pointer_cases.hpp"

#include <atomic>
#include <thread>

namespace {

using quor::memory::pointers::rc_pointer;
using quor::memory::pointers::shared_pointer;
using quor_test::create_dynamic;

constexpr int thread_count = 4;
constexpr int rounds = 2000;

// Counts its destructions; what its owners wrote must be visible in its destructor.
class shared_object : public quor_test::reference_count_pointer_ability<shared_object> {
public:
	explicit shared_object(std::atomic<int> &destroyed) : m_destroyed(destroyed) {}
	~shared_object() {
		for (int const mark : marks) {
			m_destroyed += mark;
		}
	}
	int marks[thread_count] = {};

private:
	std::atomic<int> &m_destroyed;
};

// Runs `work(index)` in all threads at once.
template <class Work>
void in_threads(Work work) {
	std::vector<std::thread> threads;
	for (int i = 0; i != thread_count; ++i) {
		threads.emplace_back(work, i);
	}
	for (std::thread &thread : threads) {
		thread.join();
	}
}

TEST(pointer_threads, references_to_one_object_are_taken_and_given_up_at_once) {
	std::atomic<int> destroyed = 0;
	rc_pointer<shared_object> const object(create_dynamic<shared_object>(destroyed));
	in_threads([&object](int) {
		for (int i = 0; i != rounds; ++i) {
			// NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the count is what is raced for
			rc_pointer<shared_object> const copy(object);
			shared_pointer<shared_object> const other(copy.get());
			rc_pointer<shared_object> moved(copy);
			moved = nullptr;
		}
	});
	EXPECT_EQ(object->get_ref_count(), 1U);
	EXPECT_EQ(destroyed, 0);
}

TEST(pointer_threads, last_thread_destroys_and_sees_what_the_others_wrote) {
	for (int round = 0; round != rounds / 10; ++round) {
		std::atomic<int> destroyed = 0;
		rc_pointer<shared_object> object(create_dynamic<shared_object>(destroyed));
		std::vector<rc_pointer<shared_object>> owners(thread_count, object);
		object = nullptr;
		in_threads([&owners](int index) {
			auto const place = static_cast<std::size_t>(index);
			owners[place]->marks[index] = 1;
			owners[place] = nullptr;
		});
		EXPECT_EQ(destroyed, thread_count);
	}
}

} // namespace
