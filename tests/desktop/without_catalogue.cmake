# Copies the library and the desktop front end into a folder of their own,
# with no catalogue beside them, and runs some of the desktop tests on them.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
get_filename_component(folder ${LIBRARY} DIRECTORY)
file(GLOB libraries ${folder}/libquillmesh.so*)
file(COPY ${libraries} ${FRONT_END} DESTINATION ${WORK})
if(EXISTS ${WORK}/libConvertmsg.so)
  message(FATAL_ERROR "the catalogue was copied")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${WORK} QUILLMESH_TEST_NO_CATALOGUE=1 ${RUNNER} ${TESTS}
                        --gtest_filter=DesktopDialog.FiltersComeFromTheCatalogueText:DesktopRun.ChosenFileConvertsWithOkOnEachBox
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
message("${out}")
if(rc EQUAL 77)
  message("SKIPPED: no X server")
  return()
endif()
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "the desktop tests failed without the catalogue (${rc}):\n${err}")
endif()
if(NOT out MATCHES "2 tests")
  message(FATAL_ERROR "the two tests did not run")
endif()
