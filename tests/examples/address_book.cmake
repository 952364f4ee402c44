# The address book in every format: what it shows, stores byte by byte, and lists.
set(books tests/examples/books)

quor_example_test(address_book_all address_book 0 OUTPUT address_book/all.txt)
foreach(format IN ITEMS binary text labeled)
  quor_example_test(address_book_${format} address_book 0 ARGUMENTS ${format} OUTPUT address_book/${format}.txt)
  add_test(NAME examples.address_book_store_${format}
    COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:address_book> -DFORMAT=${format}
            "-DEXPECTED=${PROJECT_SOURCE_DIR}/${books}/pellwick.${format}" "-DLAUNCHER=${CMAKE_CROSSCOMPILING_EMULATOR}"
            "-DWORK=${CMAKE_CURRENT_BINARY_DIR}/address_book" -P "${CMAKE_CURRENT_SOURCE_DIR}/store_and_compare.cmake")
  set_tests_properties(examples.address_book_store_${format} PROPERTIES TIMEOUT 120 LABELS examples
    DISABLED ${QUOR_PROGRAMS_DO_NOT_RUN})
  quor_example_test(address_book_load_${format} address_book 0 ARGUMENTS ${format} load ${books}/pellwick.${format}
    OUTPUT address_book/list.txt)
  # A program that appends more values to each person, or gives them more labels.
  quor_example_test(address_book_newer_${format} address_book 0 ARGUMENTS ${format} load ${books}/newer.${format}
    OUTPUT address_book/list.txt)
endforeach()
# One whose people had fewer labels, and some that are no longer asked for.
quor_example_test(address_book_older_labeled address_book 0 ARGUMENTS labeled load ${books}/older.labeled
  OUTPUT address_book/older.txt)

# Files that are no books, or damaged ones.
foreach(book IN ITEMS cut.binary cut.text cut.labeled empty.labeled endless.text endless_phones.text huge_count.binary
        negative_length.text negative_length.labeled older.binary no_such_file.text)
  string(REGEX MATCH "^([^.]*)\\.(.*)$" parts ${book})
  quor_example_test(address_book_${CMAKE_MATCH_1}_${CMAKE_MATCH_2} address_book 1
    ARGUMENTS ${CMAKE_MATCH_2} load ${books}/${book} ERRORS address_book/${CMAKE_MATCH_1}_${CMAKE_MATCH_2}.txt)
endforeach()
quor_example_test(address_book_store_nowhere address_book 1 ARGUMENTS text store ${books}/no_such_folder/book
  ERRORS address_book/store_nowhere.txt)
quor_example_test(address_book_no_format address_book 2 ARGUMENTS xml ERRORS address_book/usage.txt)
quor_example_test(address_book_no_file address_book 2 ARGUMENTS text store ERRORS address_book/usage.txt)
quor_example_test(address_book_no_command address_book 2 ARGUMENTS text drop book ERRORS address_book/usage.txt)
