# Configures and builds the ThreadSanitizer driver in WORK, then runs it on
# the end-to-end models and the example. Arguments: SOURCE, WORK, LAUNCHER, JOBS.
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE}/tests/tsan -B ${WORK}/build -DCMAKE_BUILD_TYPE=Debug
                        -DQUILLMESH_SOURCE=${SOURCE} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "configuring the ThreadSanitizer driver failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK}/build -j ${JOBS} RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "building the ThreadSanitizer driver failed")
endif()
file(GLOB MODELS ${SOURCE}/tests/golden/*/model.s2k)
list(APPEND MODELS ${SOURCE}/examples/portal.s2k)
set(ENV{TSAN_OPTIONS} "halt_on_error=1 exitcode=66")
execute_process(COMMAND ${WORK}/build/bin/parallel_runs ${WORK}/runs ${MODELS} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "parallel conversions: exit code ${result} (66: a data race)")
endif()
