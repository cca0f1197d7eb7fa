# Installs the files by which the bus and the user's service manager start the extension, with the path it is installed at.
set(ORVEL_EXTENSION_FOLDER "${CMAKE_INSTALL_PREFIX}/${bundle}")
# The service manager looks for what packages install below these only; elsewhere the bus starts the program itself.
set(ORVEL_SYSTEMD_SERVICE "")
if(CMAKE_INSTALL_PREFIX MATCHES "^/usr(/local)?/?$")
    set(ORVEL_SYSTEMD_SERVICE "SystemdService=orvel-widgets.service")
endif()
set(service app.orvel.Orvel.WidgetExtension.service)
configure_file("${desktop}/${service}.in" "${written}/${service}" @ONLY)
configure_file("${desktop}/orvel-widgets.service.in" "${written}/orvel-widgets.service" @ONLY)
file(INSTALL "${written}/${service}" DESTINATION "${CMAKE_INSTALL_PREFIX}/share/dbus-1/services")
file(INSTALL "${written}/orvel-widgets.service" DESTINATION "${CMAKE_INSTALL_PREFIX}/lib/systemd/user")
