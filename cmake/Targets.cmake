# What every target of the house shares: the warnings, the sanitizers and the way headers are found.

add_library(tolmark_options INTERFACE)
target_compile_definitions(tolmark_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                                                      QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(tolmark_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                                                 $<$<BOOL:${TOLMARK_WARNINGS_AS_ERRORS}>:-Werror>)
if(TOLMARK_SANITIZE)
    target_compile_options(tolmark_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                     -fno-omit-frame-pointer
                                                     # the sanitizers' code confuses this one about std::variant
                                                     -Wno-maybe-uninitialized)
    target_link_options(tolmark_options INTERFACE -fsanitize=address,undefined)
endif()

# What goes to the user is hardened as Debian's programs are, and tells no folder of the machine that built it.
add_library(tolmark_delivered INTERFACE)
target_compile_options(tolmark_delivered INTERFACE
    $<$<CONFIG:Release>:-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
                        -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build>)
target_link_options(tolmark_delivered INTERFACE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)

# tolmark_room(NAME LINKS target... SOURCES file...): one room of the house.
# Headers are included by their path under src/, so that an arrow between rooms shows in every #include.
function(tolmark_room name)
    cmake_parse_arguments(PARSE_ARGV 1 room "" "" "LINKS;SOURCES")
    add_library(${name} STATIC ${room_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${room_LINKS} PRIVATE tolmark_options tolmark_delivered)
endfunction()

# tolmark_test(NAME LINKS target... SOURCES file...): one Qt Test program, run by ctest without a display.
function(tolmark_test name)
    cmake_parse_arguments(PARSE_ARGV 1 test "" "" "LINKS;SOURCES")
    add_executable(${name} ${test_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${test_LINKS} Qt6::Test tolmark_options)
    # The code of a test runs once: to optimise it would cost more time than it saves.
    target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O0>)
    # In no region, which counts as United States English, unless TOLMARK_REGION names one: see scripts/regions.
    add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/scripts/in-region $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC")
endfunction()
