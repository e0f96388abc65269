# Runs the fuzz target for SECONDS seconds from a seed corpus of the golden
# inputs and the real-world files, with the dictionary of titles and keys.
#   cmake -DFUZZER=... -DDICT=... -DGOLDEN=... -DCORPUS=... -DWORK=... -DSECONDS=... -P run_fuzz.cmake
if(NOT EXISTS "${FUZZER}")
  message(FATAL_ERROR "the fuzz target was not built: clang with libFuzzer (packages clang and libclang-rt-14-dev) is missing")
endif()
file(MAKE_DIRECTORY "${WORK}/corpus" "${WORK}/seeds")
file(GLOB golden_cases LIST_DIRECTORIES true "${GOLDEN}/*")
foreach(case ${golden_cases})
  if(EXISTS "${case}/model.s2k")
    get_filename_component(name "${case}" NAME)
    configure_file("${case}/model.s2k" "${WORK}/seeds/${name}.s2k" COPYONLY)
  endif()
endforeach()
file(GLOB corpus_files "${CORPUS}/*.s2k")
foreach(path ${corpus_files})
  get_filename_component(name "${path}" NAME)
  configure_file("${path}" "${WORK}/seeds/${name}" COPYONLY)
endforeach()
execute_process(
  COMMAND "${FUZZER}" -max_total_time=${SECONDS} -dict=${DICT} -max_len=65536 -timeout=20 -rss_limit_mb=2560
          -print_final_stats=1 -artifact_prefix=${WORK}/ "${WORK}/corpus" "${WORK}/seeds"
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "the fuzz target found a fault (exit ${result}); the input that caused it is in ${WORK}")
endif()
