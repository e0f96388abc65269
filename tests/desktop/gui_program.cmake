# quillmesh-gui where it cannot show its windows: a usage error, and no
# display; each with its exit status and a line that says why.
execute_process(COMMAND ${GUI} --bogus RESULT_VARIABLE rc ERROR_VARIABLE err)
if(NOT rc EQUAL 64 OR NOT err MATCHES "usage: quillmesh-gui")
  message(FATAL_ERROR "an unknown option gave ${rc}:\n${err}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=WAYLAND_DISPLAY DISPLAY=:65000 ${GUI} ${MODEL}
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT rc EQUAL 2 OR NOT err MATCHES "quillmesh-gui: no desktop windows: ")
  message(FATAL_ERROR "with no display it gave ${rc}:\n${err}")
endif()
if(NOT out STREQUAL "")
  message(FATAL_ERROR "with no display it printed: ${out}")
endif()
