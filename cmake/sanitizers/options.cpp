// What the sanitizers are told in every program of a build that has them, however clean its
// environment is: to end the program at the first finding, and what is others' to mend.

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the sanitizers call them
// so
const char* __asan_default_options()
{
    // libfaketime comes first where the clock is turned.
    return "detect_stack_use_after_return=1:verify_asan_link_order=0:suppressions=" SUPPRESSIONS
           "/address.txt";
}

const char* __ubsan_default_options()
{
    return "halt_on_error=1:print_stacktrace=1:suppressions=" SUPPRESSIONS "/undefined.txt";
}

const char* __lsan_default_options()
{
    return "print_suppressions=0:suppressions=" SUPPRESSIONS "/leaks.txt";
}

const char* __tsan_default_options()
{
    // How libraries that were built without it take turns, it does not see.
    // Qt and the tests start programs beside threads.
    return "halt_on_error=1:second_deadlock_stack=1:ignore_noninstrumented_modules=1:"
           "die_after_fork=0:suppressions=" SUPPRESSIONS "/threads.txt";
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)
}
