// Loads a module that uses the library, uses it, and closes it again: the library must
// really leave the process. The program itself is not linked to the library.

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace {

bool is_loaded(char const *path) {
	void *const handle = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
	if (handle != nullptr) {
		dlclose(handle);
	}
	return handle != nullptr;
}

TEST(unload, library_is_used_and_leaves_the_process_again) {
	ASSERT_FALSE(is_loaded(QUOR_LIBRARY_FILE));
	for (int round = 0; round != 3; ++round) {
		SCOPED_TRACE(round);
		void *const handle = dlopen(QUOR_CLIENT_FILE, RTLD_NOW | RTLD_LOCAL);
		ASSERT_NE(handle, nullptr) << dlerror();
		EXPECT_TRUE(is_loaded(QUOR_LIBRARY_FILE));
		auto *const use_quor = reinterpret_cast<unsigned int (*)(int *)>(dlsym(handle, "use_quor"));
		ASSERT_NE(use_quor, nullptr);
		int destroyed = 0;
		EXPECT_EQ(use_quor(&destroyed), 42U);
		EXPECT_EQ(destroyed, 1) << "the temporary, but not its clone";
		ASSERT_EQ(dlclose(handle), 0);
		EXPECT_EQ(destroyed, 2) << "unloading destroys the callback";
		EXPECT_FALSE(is_loaded(QUOR_CLIENT_FILE));
		EXPECT_FALSE(is_loaded(QUOR_LIBRARY_FILE));
	}
}

TEST(unload, library_alone_loads_and_unloads_safely) {
	void *const handle = dlopen(QUOR_LIBRARY_FILE, RTLD_NOW | RTLD_LOCAL);
	ASSERT_NE(handle, nullptr) << dlerror();
	EXPECT_TRUE(is_loaded(QUOR_LIBRARY_FILE));
	ASSERT_EQ(dlclose(handle), 0);
	EXPECT_FALSE(is_loaded(QUOR_LIBRARY_FILE));
}

} // namespace
