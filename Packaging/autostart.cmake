if(CMAKE_INSTALL_PREFIX MATCHES "^/usr/?$")
    file(INSTALL "${autostart}" DESTINATION /etc/xdg/autostart)
endif()
