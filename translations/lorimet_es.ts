<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>lorimet</name>
    <message>
        <source>Failed to register user defined messages.</source>
        <translation>No se pudieron registrar los mensajes definidos por el usuario.</translation>
    </message>
    <message>
        <source>Serious Error</source>
        <translation>Error grave</translation>
    </message>
    <message>
        <source>LOST A MESSAGE!!!</source>
        <translation>¡¡¡MENSAJE PERDIDO!!!</translation>
    </message>
    <message>
        <source>Error:</source>
        <translation>Error:</translation>
    </message>
    <message>
        <source>Error:  </source>
        <translation>Error:  </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERROR</translation>
    </message>
    <message>
        <source>Could not locate the Norvick Main executable.</source>
        <translation>No se encuentra el programa principal de Norvick.</translation>
    </message>
    <message>
        <source>Please check the connection and make sure the cable is properly connected.  Click the &quot;Restart&quot; button to try again.</source>
        <translation>Compruebe la conexión y asegúrese de que el cable está bien conectado. Haga clic en el botón «Reiniciar» para intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>ERROR: Unable to connect to the device</source>
        <translation>ERROR: no se puede conectar con el dispositivo</translation>
    </message>
    <message>
        <source>Please check to make sure the device drivers and libraries are correctly installed.</source>
        <translation>Compruebe que los controladores y las bibliotecas del dispositivo están correctamente instalados.</translation>
    </message>
    <message>
        <source>RP1210A Error: </source>
        <translation>Error RP1210A: </translation>
    </message>
    <message>
        <source>Successful connection was attained but has since been lost.</source>
        <translation>La conexión se había establecido, pero se ha perdido después.</translation>
    </message>
    <message>
        <source>Please check connection between the PC and ECU.</source>
        <translation>Compruebe la conexión entre el PC y la ECU.</translation>
    </message>
    <message>
        <source>ECU Information</source>
        <translation>Información de la ECU</translation>
    </message>
    <message>
        <source>System Name</source>
        <translation>Nombre del sistema</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Part Number</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Versión de software</translation>
    </message>
    <message>
        <source>Production Date</source>
        <translation>Fecha de producción</translation>
    </message>
    <message>
        <source>Diagnostic ID</source>
        <translation>ID de diagnóstico</translation>
    </message>
    <message>
        <source>Odometer</source>
        <translation>Odómetro</translation>
    </message>
    <message>
        <source>Trip Reading</source>
        <translation>Contador parcial</translation>
    </message>
    <message>
        <source>Next Service</source>
        <translation>Próx. mantenimiento</translation>
    </message>
    <message>
        <source>Wheel Speed (mph)</source>
        <translation>Velocidad de rueda (mph)</translation>
    </message>
    <message>
        <source>Warning Lamp</source>
        <translation>Lámpara de aviso</translation>
    </message>
    <message>
        <source>Air Pressures (psi)</source>
        <translation>Presiones de aire (psi)</translation>
    </message>
    <message>
        <source>Service Brake Demand</source>
        <translation>Demanda de freno de servicio</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Alimentación</translation>
    </message>
    <message>
        <source>Brake Side 1</source>
        <translation>Freno lado 1</translation>
    </message>
    <message>
        <source>Brake Side 2</source>
        <translation>Freno lado 2</translation>
    </message>
    <message>
        <source>Bellows - Main Axle</source>
        <translation>Fuelles - Eje principal</translation>
    </message>
    <message>
        <source>Bellows - Steering Axle</source>
        <translation>Fuelles - Eje direccional</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensión</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Stop Light</source>
        <translation>Luces de freno</translation>
    </message>
    <message>
        <source>Permanent</source>
        <translation>Permanente</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Fallos</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>Existentes</translation>
    </message>
    <message>
        <source>Message Center:</source>
        <translation>Centro de mensajes:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Encendida</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Apagada</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnóstico</translation>
    </message>
    <message>
        <source>&amp;Sign-off</source>
        <translation>&amp;Aprobación</translation>
    </message>
    <message>
        <source>&amp;Tests</source>
        <translation>&amp;Pruebas</translation>
    </message>
    <message>
        <source>S&amp;ystem</source>
        <translation>&amp;Sistema</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;ODR</source>
        <translation>&amp;ODR</translation>
    </message>
    <message>
        <source>&amp;Utility</source>
        <translation>&amp;Utilidades</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Display Faults</source>
        <translation>&amp;Mostrar fallos</translation>
    </message>
    <message>
        <source>&amp;Clear Faults</source>
        <translation>&amp;Borrar fallos</translation>
    </message>
    <message>
        <source>&amp;Restart ECU Communications</source>
        <translation>&amp;Reiniciar la comunicación con la ECU</translation>
    </message>
    <message>
        <source>&amp;Begin Sign-off Procedure</source>
        <translation>&amp;Iniciar el procedimiento de aprobación</translation>
    </message>
    <message>
        <source>&amp;Pressure Test</source>
        <translation>Prueba de &amp;presión</translation>
    </message>
    <message>
        <source>&amp;Redundancy Test</source>
        <translation>Prueba de &amp;redundancia</translation>
    </message>
    <message>
        <source>&amp;Sensor Test</source>
        <translation>Prueba de &amp;sensores</translation>
    </message>
    <message>
        <source>&amp;Lamp Test</source>
        <translation>Prueba de &amp;lámpara</translation>
    </message>
    <message>
        <source>Suspension &amp;Calibration</source>
        <translation>&amp;Calibración de la suspensión</translation>
    </message>
    <message>
        <source>Stop Light &amp;Activation</source>
        <translation>&amp;Activación de las luces de freno</translation>
    </message>
    <message>
        <source>Edit Parameters From &amp;ECU</source>
        <translation>Editar parámetros desde la &amp;ECU</translation>
    </message>
    <message>
        <source>Edit Parameters From &amp;File</source>
        <translation>Editar parámetros desde un &amp;archivo</translation>
    </message>
    <message>
        <source>Save &amp;EEPROM Data</source>
        <translation>Guardar datos de la &amp;EEPROM</translation>
    </message>
    <message>
        <source>&amp;Reset ECU</source>
        <translation>&amp;Reiniciar la ECU</translation>
    </message>
    <message>
        <source>&amp;Display ODR Overview Data</source>
        <translation>&amp;Mostrar el resumen de datos ODR</translation>
    </message>
    <message>
        <source>&amp;Export ODR Data</source>
        <translation>&amp;Exportar datos ODR</translation>
    </message>
    <message>
        <source>&amp;Set Customer EOL Bit</source>
        <translation>&amp;Establecer el bit EOL del cliente</translation>
    </message>
    <message>
        <source>Bus &amp;Monitor</source>
        <translation>&amp;Monitor de bus</translation>
    </message>
    <message>
        <source>Start Data&amp;log Only</source>
        <translation>Iniciar solo el regis&amp;tro de datos</translation>
    </message>
    <message>
        <source>Start &amp;Datalog Only</source>
        <translation>Iniciar solo el &amp;registro de datos</translation>
    </message>
    <message>
        <source>Stop &amp;Datalog Only</source>
        <translation>Detener solo el &amp;registro de datos</translation>
    </message>
    <message>
        <source>&amp;Disable Broadcast</source>
        <translation>&amp;Desactivar la difusión</translation>
    </message>
    <message>
        <source>Enable &amp;Broadcast</source>
        <translation>&amp;Activar la difusión</translation>
    </message>
    <message>
        <source>ODR Delete</source>
        <translation>Borrado de ODR</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>&amp;Buscar ayuda sobre...</translation>
    </message>
    <message>
        <source>&amp;About Lorimet...</source>
        <translation>&amp;Acerca de Lorimet...</translation>
    </message>
    <message>
        <source>Exit Trailer Zelt</source>
        <translation>Salir de Trailer Zelt</translation>
    </message>
    <message>
        <source>Print Fault and Sensor\Valve Test Information</source>
        <translation>Imprimir la información de fallos y de pruebas de sensores\válvulas</translation>
    </message>
    <message>
        <source>Save Fault and Sensor\Valve Test Information</source>
        <translation>Guardar la información de fallos y de pruebas de sensores\válvulas</translation>
    </message>
    <message>
        <source>Restart the Trailer Diagnostics</source>
        <translation>Reiniciar el diagnóstico del remolque</translation>
    </message>
    <message>
        <source>View the Faults</source>
        <translation>Ver los fallos</translation>
    </message>
    <message>
        <source>Test Lamp</source>
        <translation>Probar la lámpara</translation>
    </message>
    <message>
        <source>Test the Sensors</source>
        <translation>Probar los sensores</translation>
    </message>
    <message>
        <source>View the Notebook</source>
        <translation>Ver el bloc de notas</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Pressure Test Passed.</source>
        <translation>Prueba de presión superada.</translation>
    </message>
    <message>
        <source>Pressure Test Failed.  Please resolve issues and run test again.</source>
        <translation>Prueba de presión no superada. Elimine las causas y repita la prueba.</translation>
    </message>
    <message>
        <source>Redundancy Test Passed.</source>
        <translation>Prueba de redundancia superada.</translation>
    </message>
    <message>
        <source>Redundancy Test Failed.  Please resolve issues and run test again.</source>
        <translation>Prueba de redundancia no superada. Elimine las causas y repita la prueba.</translation>
    </message>
    <message>
        <source>Sensor Test Passed.</source>
        <translation>Prueba de sensores superada.</translation>
    </message>
    <message>
        <source>Sensor Test Failed.  Please resolve issues and run test again.</source>
        <translation>Prueba de sensores no superada. Elimine las causas y repita la prueba.</translation>
    </message>
    <message>
        <source>Test Passed</source>
        <translation>Prueba superada</translation>
    </message>
    <message>
        <source>Test Failed!</source>
        <translation>¡Prueba no superada!</translation>
    </message>
    <message>
        <source>Fault Information</source>
        <translation>Información de fallos</translation>
    </message>
    <message>
        <source>Faults:</source>
        <translation>Fallos:</translation>
    </message>
    <message>
        <source>Repair Instructions:</source>
        <translation>Instrucciones de reparación:</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Veces</translation>
    </message>
    <message>
        <source>SID</source>
        <translation>SID</translation>
    </message>
    <message>
        <source>FMI</source>
        <translation>FMI</translation>
    </message>
    <message>
        <source>ACTIVE</source>
        <translation>ACTIVO</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Memorizado</translation>
    </message>
    <message>
        <source>The description is not available</source>
        <translation>La descripción no está disponible</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>No help manual currently exists for this Trailer configuration.</source>
        <translation>Actualmente no existe ningún manual de ayuda para esta configuración de remolque.</translation>
    </message>
    <message>
        <source>Missing Help File</source>
        <translation>Falta el archivo de ayuda</translation>
    </message>
    <message>
        <source>Error in insert fault record.</source>
        <translation>Error al insertar el registro de fallo.</translation>
    </message>
    <message>
        <source>Reading Parameter Data...</source>
        <translation>Leyendo los datos de parámetros...</translation>
    </message>
    <message>
        <source>Range Limit Exceeded</source>
        <translation>Valor fuera de rango</translation>
    </message>
    <message>
        <source>Invalid Values</source>
        <translation>Valores no válidos</translation>
    </message>
    <message>
        <source>OVG System Parameters</source>
        <translation>Parámetros del sistema OVG</translation>
    </message>
    <message>
        <source>Vehicle Type</source>
        <translation>Tipo de vehículo</translation>
    </message>
    <message>
        <source>Semi trailer</source>
        <translation>Semirremolque</translation>
    </message>
    <message>
        <source>Draw-bar trailer</source>
        <translation>Remolque con lanza</translation>
    </message>
    <message>
        <source>Single axle trailer</source>
        <translation>Remolque de un eje</translation>
    </message>
    <message>
        <source>Number of Axles</source>
        <translation>Número de ejes</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>ABS System</source>
        <translation>Sistema ABS</translation>
    </message>
    <message>
        <source>2S/2M</source>
        <translation>2S/2M</translation>
    </message>
    <message>
        <source>4S/2M</source>
        <translation>4S/2M</translation>
    </message>
    <message>
        <source>4S/3M</source>
        <translation>4S/3M</translation>
    </message>
    <message>
        <source>4S/2M+1M</source>
        <translation>4S/2M+1M</translation>
    </message>
    <message>
        <source>2S/1M</source>
        <translation>2S/1M</translation>
    </message>
    <message>
        <source>Suspension</source>
        <translation>Suspensión</translation>
    </message>
    <message>
        <source>Suspension Type</source>
        <translation>Tipo de suspensión</translation>
    </message>
    <message>
        <source>Air suspension</source>
        <translation>Suspensión neumática</translation>
    </message>
    <message>
        <source>Mechanical suspension</source>
        <translation>Suspensión mecánica</translation>
    </message>
    <message>
        <source>Modular Mounting</source>
        <translation>Montaje del modulador</translation>
    </message>
    <message>
        <source>Facing Forward</source>
        <translation>Hacia delante</translation>
    </message>
    <message>
        <source>Axle Definition</source>
        <translation>Definición de los ejes</translation>
    </message>
    <message>
        <source>Axle</source>
        <translation>Eje</translation>
    </message>
    <message>
        <source>Sensor c-d</source>
        <translation>Sensor c-d</translation>
    </message>
    <message>
        <source>Sensor e-f</source>
        <translation>Sensor e-f</translation>
    </message>
    <message>
        <source>3rd Modulator</source>
        <translation>3.er modulador</translation>
    </message>
    <message>
        <source>Lift Axle 1</source>
        <translation>Eje elevable 1</translation>
    </message>
    <message>
        <source>Lift Axle 2</source>
        <translation>Eje elevable 2</translation>
    </message>
    <message>
        <source>As Tag Axle</source>
        <translation>Como eje arrastrado</translation>
    </message>
    <message>
        <source>Stop Light Activation</source>
        <translation>Activación de las luces de freno</translation>
    </message>
    <message>
        <source>Stop Light Activation Cable</source>
        <translation>Cable de activación de las luces de freno</translation>
    </message>
    <message>
        <source>Optional Stoplight Activation Cable Installed</source>
        <translation>Cable opcional de activación de las luces de freno instalado</translation>
    </message>
    <message>
        <source>Level 2 OVG Activation Output (GIO3)</source>
        <translation>Salida de activación OVG nivel 2 (GIO3)</translation>
    </message>
    <message>
        <source>No Stoplight Activation Cable Installed</source>
        <translation>Cable de activación de las luces de freno no instalado</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>OVG LSV  Parameters</source>
        <translation>Parámetros LSV OVG</translation>
    </message>
    <message>
        <source>Laden</source>
        <translation>En carga</translation>
    </message>
    <message>
        <source>Unladen</source>
        <translation>En vacío</translation>
    </message>
    <message>
        <source>Axle load &#13;
(kg)&#13;
</source>
        <translation>Carga del eje &#13;
(kg)&#13;
</translation>
    </message>
    <message>
        <source>Suspension pressure (bar)&#13;
</source>
        <translation>Presión suspensión (psi)&#13;
</translation>
    </message>
    <message>
        <source>Suspension path (mm)</source>
        <translation>Recorrido suspensión (mm)</translation>
    </message>
    <message>
        <source>The file was not read: a count is not from 0 to 200.</source>
        <translation>El archivo no se ha leído: un número de bytes no está entre 0 y 200.</translation>
    </message>
    <message>
        <source>The file was not read: a byte is not from 0 to 255.</source>
        <translation>El archivo no se ha leído: un byte no está entre 0 y 255.</translation>
    </message>
    <message>
        <source>The file was not read: the production date is not a date.</source>
        <translation>El archivo no se ha leído: la fecha de producción no es una fecha.</translation>
    </message>
    <message>
        <source>The file was not read: the vehicle id has fewer than 18 characters.</source>
        <translation>El archivo no se ha leído: el ID del vehículo tiene menos de 18 caracteres.</translation>
    </message>
    <message>
        <source>The file was not read: the manufacturer has fewer than 20 characters.</source>
        <translation>El archivo no se ha leído: el fabricante tiene menos de 20 caracteres.</translation>
    </message>
    <message>
        <source>The file was not read: the trailer type has fewer than 20 characters.</source>
        <translation>El archivo no se ha leído: el tipo de remolque tiene menos de 20 caracteres.</translation>
    </message>
    <message>
        <source>The file was not saved: it cannot be written.</source>
        <translation>El archivo no se ha guardado: no se puede escribir.</translation>
    </message>
    <message>
        <source>The file was not saved: a block that it needs is missing.</source>
        <translation>El archivo no se ha guardado: falta un bloque necesario.</translation>
    </message>
    <message>
        <source>The file was not saved: a block is longer than 200 bytes.</source>
        <translation>El archivo no se ha guardado: un bloque supera 200 bytes.</translation>
    </message>
    <message>
        <source>The file was not saved: the sum of a block is above 32767.</source>
        <translation>El archivo no se ha guardado: la suma de un bloque supera 32767.</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>Braking &#13;
pressure&#13;
</source>
        <translation>Presión de &#13;
frenado&#13;
</translation>
    </message>
    <message>
        <source>Control pressure PM (psi)</source>
        <translation>Presión de mando PM (psi)</translation>
    </message>
    <message>
        <source>Distance sensor lever length (mm)</source>
        <translation>Longitud de palanca del sensor de recorrido (mm)</translation>
    </message>
    <message>
        <source>Production Date (week/year)</source>
        <translation>Fecha de producción (semana/año)</translation>
    </message>
    <message>
        <source>Vehicle ID</source>
        <translation>ID del vehículo</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Axle Load Laden out of range.  Valid range : 0 - 25,000 kg</source>
        <translation>Carga del eje (en carga) fuera de rango. Rango válido: 0 - 25000 kg</translation>
    </message>
    <message>
        <source>Axle Load Unladen out of range.  Valid range : 0 - 25,000 kg</source>
        <translation>Carga del eje (en vacío) fuera de rango. Rango válido: 0 - 25000 kg</translation>
    </message>
    <message>
        <source>Braking Pressure Laden out of range.  Valid range : 0 - 145 psi</source>
        <translation>Presión de frenado en carga fuera de rango. Rango válido: 0 - 145 psi</translation>
    </message>
    <message>
        <source>Braking Pressure Unladen out of range.  Valid range : 0 - 145 psi</source>
        <translation>Presión de frenado en vacío fuera de rango. Rango válido: 0 - 145 psi</translation>
    </message>
    <message>
        <source>Lever Length out of range.  Valid range : 50 - 200 mm</source>
        <translation>Longitud de palanca fuera de rango. Rango válido: 50 - 200 mm</translation>
    </message>
    <message>
        <source>Production Week out of range.  Valid range : 0 - 52</source>
        <translation>Semana de producción fuera de rango. Rango válido: 0 - 52</translation>
    </message>
    <message>
        <source>Suspension Pressure Unladen out of range.  Valid range : 0 - 181 psi</source>
        <translation>Presión de suspensión en vacío fuera de rango. Rango válido: 0 - 181 psi</translation>
    </message>
    <message>
        <source>Suspension Pressure Laden out of range.  Valid range : 0 - 181 psi</source>
        <translation>Presión de suspensión en carga fuera de rango. Rango válido: 0 - 181 psi</translation>
    </message>
    <message>
        <source>Suspension Path Laden out of range.  Valid range : 10 - 400 mm</source>
        <translation>Recorrido de suspensión en carga fuera de rango. Rango válido: 10 - 400 mm</translation>
    </message>
    <message>
        <source>Number of Teeth out of range.  Valid range : 50 - 130</source>
        <translation>Número de dientes fuera de rango. Rango válido: 50 - 130</translation>
    </message>
    <message>
        <source>Tire Size out of range.  Valid range : 1200 - 5200 mm</source>
        <translation>Circunferencia del neumático fuera de rango. Rango válido: 1200 - 5200 mm</translation>
    </message>
    <message>
        <source>Lifting Pressure out of range.  Valid range : 0 - 100 psi</source>
        <translation>Presión de elevación fuera de rango. Rango válido: 0 - 100 psi</translation>
    </message>
    <message>
        <source>Lowering Pressure out of range.  Valid range : 0 - 100 psi</source>
        <translation>Presión de descenso fuera de rango. Rango válido: 0 - 100 psi</translation>
    </message>
    <message>
        <source>Turn On Thresh out of range.  Valid range : 2 - 100 kph</source>
        <translation>Umbral de activación fuera de rango. Rango válido: 2 - 100 km/h</translation>
    </message>
    <message>
        <source>Turn Off Thresh out of range.  Valid range : 0 - 100 kph</source>
        <translation>Umbral de desactivación fuera de rango. Rango válido: 0 - 100 km/h</translation>
    </message>
    <message>
        <source>GIO Selection</source>
        <translation>Selección de GIO</translation>
    </message>
    <message>
        <source>Special GIO Functions</source>
        <translation>Funciones GIO especiales</translation>
    </message>
    <message>
        <source>TIXA Tire Inflation</source>
        <translation>Inflado de neumáticos TIXA</translation>
    </message>
    <message>
        <source>Tag Axle (Rear Suspension Dump)</source>
        <translation>Eje arrastrado (vaciado de la suspensión trasera)</translation>
    </message>
    <message>
        <source>Reverse Light</source>
        <translation>Luz de marcha atrás</translation>
    </message>
    <message>
        <source>Tank Pressure</source>
        <translation>Presión del depósito de aire</translation>
    </message>
    <message>
        <source>Car Hauler Height Status with Events</source>
        <translation>Estado de altura del portacoches con eventos</translation>
    </message>
    <message>
        <source>Car Hauler Height Status with Events and TIXA</source>
        <translation>Estado de altura del portacoches con eventos y TIXA</translation>
    </message>
    <message>
        <source>Lift Axle</source>
        <translation>Eje elevable</translation>
    </message>
    <message>
        <source>Door Ajar</source>
        <translation>Puerta entreabierta</translation>
    </message>
    <message>
        <source>GIO3, single port Y-cable, P/N 310 662 517 0</source>
        <translation>GIO3, cable en Y de un puerto, ref. 310 662 517 0</translation>
    </message>
    <message>
        <source>GIO1, single port Y-cable, P/N 310 662 517 0</source>
        <translation>GIO1, cable en Y de un puerto, ref. 310 662 517 0</translation>
    </message>
    <message>
        <source>Perkins Application</source>
        <translation>Aplicación Perkins</translation>
    </message>
    <message>
        <source>Hydraulic Pressure Sensor (GIO 1)</source>
        <translation>Sensor de presión hidráulica (GIO 1)</translation>
    </message>
    <message>
        <source>Constant Power (GIO 2)</source>
        <translation>Alimentación eléctrica permanente (GIO 2)</translation>
    </message>
    <message>
        <source>Power Supply</source>
        <translation>Alimentación eléctrica</translation>
    </message>
    <message>
        <source>Speed Switch (GIO 3)</source>
        <translation>Interruptor de velocidad (GIO 3)</translation>
    </message>
    <message>
        <source>OVG/ABS Parameters</source>
        <translation>Parámetros OVG/ABS</translation>
    </message>
    <message>
        <source>Overturn Guard (OVG)</source>
        <translation>Protección antivuelco (OVG)</translation>
    </message>
    <message>
        <source>OVG Not Available</source>
        <translation>OVG no disponible</translation>
    </message>
    <message>
        <source>OVG OFF</source>
        <translation>OVG desactivado</translation>
    </message>
    <message>
        <source>OVG On - Single Tires</source>
        <translation>OVG activado - neumáticos sencillos</translation>
    </message>
    <message>
        <source>OVG On - Twin Tires</source>
        <translation>OVG activado - neumáticos gemelos</translation>
    </message>
    <message>
        <source>Tire Circumference (mm)</source>
        <translation>Circunferencia del neumático (mm)</translation>
    </message>
    <message>
        <source>Number of Teeth</source>
        <translation>Número de dientes</translation>
    </message>
    <message>
        <source>Axle c-d</source>
        <translation>Eje c-d</translation>
    </message>
    <message>
        <source>Axle e-f</source>
        <translation>Eje e-f</translation>
    </message>
    <message>
        <source>&amp;Save to ECU</source>
        <translation>&amp;Guardar en la ECU</translation>
    </message>
    <message>
        <source>Save To &amp;File</source>
        <translation>Guardar en un arc&amp;hivo</translation>
    </message>
    <message>
        <source>Writing EOL5 Data to ECU</source>
        <translation>Escribiendo los datos EOL5 en la ECU</translation>
    </message>
    <message>
        <source>Writing Vehicle Data to ECU</source>
        <translation>Escribiendo los datos del vehículo en la ECU</translation>
    </message>
    <message>
        <source>Writing Trailer Data to ECU</source>
        <translation>Escribiendo los datos del remolque en la ECU</translation>
    </message>
    <message>
        <source>Writing EOL3 Data to ECU</source>
        <translation>Escribiendo los datos EOL3 en la ECU</translation>
    </message>
    <message>
        <source>Writing EOL4 Data to ECU</source>
        <translation>Escribiendo los datos EOL4 en la ECU</translation>
    </message>
    <message>
        <source>Writing EOL6 Data to ECU</source>
        <translation>Escribiendo los datos EOL6 en la ECU</translation>
    </message>
    <message>
        <source>Writing EOL9 Data to ECU</source>
        <translation>Escribiendo los datos EOL9 en la ECU</translation>
    </message>
    <message>
        <source>Writing FCF 1 Data to ECU</source>
        <translation>Escribiendo los datos FCF 1 en la ECU</translation>
    </message>
    <message>
        <source>Writing FCF 2 Data to ECU</source>
        <translation>Escribiendo los datos FCF 2 en la ECU</translation>
    </message>
    <message>
        <source>Writing FCF 3 Data to ECU</source>
        <translation>Escribiendo los datos FCF 3 en la ECU</translation>
    </message>
    <message>
        <source>Writing FCF 4 Data to ECU</source>
        <translation>Escribiendo los datos FCF 4 en la ECU</translation>
    </message>
    <message>
        <source>Writing FCF 5 Data to ECU</source>
        <translation>Escribiendo los datos FCF 5 en la ECU</translation>
    </message>
    <message>
        <source>Writing FCF 6 Data to ECU</source>
        <translation>Escribiendo los datos FCF 6 en la ECU</translation>
    </message>
    <message>
        <source>Writing FCF 7 Data to ECU</source>
        <translation>Escribiendo los datos FCF 7 en la ECU</translation>
    </message>
    <message>
        <source>Writing FCF 8 Data to ECU</source>
        <translation>Escribiendo los datos FCF 8 en la ECU</translation>
    </message>
    <message>
        <source>Writing OVG Data to ECU </source>
        <translation>Escribiendo los datos OVG en la ECU </translation>
    </message>
    <message>
        <source>Updating Checksums</source>
        <translation>Actualizando las sumas de comprobación</translation>
    </message>
    <message>
        <source>Clearing Faults</source>
        <translation>Borrando los fallos</translation>
    </message>
    <message>
        <source>Performing Reset of ECU</source>
        <translation>Reiniciando la ECU</translation>
    </message>
    <message>
        <source>Checking for Parameter Errors</source>
        <translation>Buscando errores de parámetros</translation>
    </message>
    <message>
        <source>Lift Axle Lowering/Lifting Pressures</source>
        <translation>Presiones de descenso/elevación del eje elevable</translation>
    </message>
    <message>
        <source>Lowering Pressure</source>
        <translation>Presión de descenso</translation>
    </message>
    <message>
        <source>Lifting Pressure</source>
        <translation>Presión de elevación</translation>
    </message>
    <message>
        <source>Lowering Pressure (psi)</source>
        <translation>Presión de descenso (psi)</translation>
    </message>
    <message>
        <source>Lifting Pressure (psi)</source>
        <translation>Presión de elevación (psi)</translation>
    </message>
    <message>
        <source>Lifting Pressure must be less than Lowering Pressure.</source>
        <translation>La presión de elevación debe ser inferior a la presión de descenso.</translation>
    </message>
    <message>
        <source>Lifting Pressure and Lowering Pressure must differ by more than 5 psi.</source>
        <translation>La presión de elevación y la presión de descenso deben diferir en más de 5 psi.</translation>
    </message>
    <message>
        <source>Lifting Pressure and Lowering Pressure must differ by more than 2 kph.</source>
        <translation>La presión de elevación y la presión de descenso deben diferir en más de 2 km/h.</translation>
    </message>
    <message>
        <source>Speed Switch Vehicle Speed Thresholds</source>
        <translation>Umbrales del interruptor de velocidad</translation>
    </message>
    <message>
        <source>&quot;Turn On&quot; Vehicle Speed</source>
        <translation>Velocidad de «activación» del vehículo</translation>
    </message>
    <message>
        <source>&quot;Turn Off&quot; Vehicle Speed</source>
        <translation>Velocidad de «desactivación» del vehículo</translation>
    </message>
    <message>
        <source>12V is supplied from 0 kph until the turn-off speed is reached.</source>
        <translation>Se suministran 12 V desde 0 km/h hasta alcanzar la velocidad de desactivación.</translation>
    </message>
    <message>
        <source>Turn OFF Threshold must be less than Turn ON Threshold.</source>
        <translation>El umbral de DESACTIVACIÓN debe ser inferior al umbral de ACTIVACIÓN.</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>No se puede mostrar el contenido de la ayuda. No hay ninguna ayuda asociada a este proyecto.</translation>
    </message>
    <message>
        <source>About Lorimet</source>
        <translation>Acerca de Lorimet</translation>
    </message>
    <message>
        <source>Diagnostics and end-of-line tests for trailer brake ECUs</source>
        <translation>Diagnóstico y pruebas de fin de línea para ECU de frenos de remolque</translation>
    </message>
    <message>
        <source>This program is protected by copyright law and international treaties. It is supplied to trained workshop and production staff only. Work on a trailer&apos;s brake system endangers lives when it is done wrongly: follow the instructions of the vehicle&apos;s and the brake system&apos;s makers, and test the brakes before the vehicle goes back on the road. Norvick accepts no liability for damage that arises from improper use.</source>
        <translation>Este programa está protegido por la ley de propiedad intelectual y por los tratados internacionales. Se suministra exclusivamente a personal formado de taller y de producción. Un trabajo incorrecto en el sistema de frenos de un remolque pone vidas en peligro: siga las instrucciones de los fabricantes del vehículo y del sistema de frenos, y pruebe los frenos antes de que el vehículo vuelva a la carretera. Norvick no se hace responsable de los daños derivados de un uso indebido.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Failed to launch Adobe Acrobat Reader due to one of the following reasons:</source>
        <translation>No se pudo iniciar Adobe Acrobat Reader por uno de los motivos siguientes:</translation>
    </message>
    <message>
        <source>1.  Path to the executable contained in the registry is invalid.</source>
        <translation>1.  La ruta del programa indicada en el registro no es válida.</translation>
    </message>
    <message>
        <source>2.  Adobe Acrobat Reader version is not 4.0 or higher.</source>
        <translation>2.  La versión de Adobe Acrobat Reader no es 4.0 o superior.</translation>
    </message>
    <message>
        <source>3.  Adobe Acrobat Reader has not been installed.</source>
        <translation>3.  Adobe Acrobat Reader no está instalado.</translation>
    </message>
    <message>
        <source>Norvick Lorimet</source>
        <translation>Norvick Lorimet</translation>
    </message>
    <message>
        <source>Lorimet</source>
        <translation>Lorimet</translation>
    </message>
    <message>
        <source>Communications are only partially functioning.</source>
        <translation>La comunicación solo funciona parcialmente.</translation>
    </message>
    <message>
        <source>Please check your connections between the PC</source>
        <translation>Compruebe las conexiones entre el PC</translation>
    </message>
    <message>
        <source>     and the Norvick Trailer ABS ECU.</source>
        <translation>     y la ECU ABS de remolque Norvick.</translation>
    </message>
    <message>
        <source>Communications are not working, unable to connect to the data bus.</source>
        <translation>La comunicación no funciona, no se puede conectar con el bus de datos.</translation>
    </message>
    <message>
        <source>RP1210A Error</source>
        <translation>Error RP1210A</translation>
    </message>
    <message>
        <source>Number: </source>
        <translation>Número: </translation>
    </message>
    <message>
        <source>Description: </source>
        <translation>Descripción: </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>  Complete</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Sensor c air gap too large</source>
        <translation>Sensor c - entrehierro demasiado grande</translation>
    </message>
    <message>
        <source>Sensor c wheel speed diff.</source>
        <translation>Sensor c - diferencia de velocidad de rueda</translation>
    </message>
    <message>
        <source>Sensor c short to 12V</source>
        <translation>Sensor c - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Sensor c short to ground</source>
        <translation>Sensor c - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Sensor c open circuit</source>
        <translation>Sensor c - circuito abierto</translation>
    </message>
    <message>
        <source>Sensor c open or short circuit</source>
        <translation>Sensor c - circuito abierto o cortocircuito</translation>
    </message>
    <message>
        <source>Sensor c tone wheel defect</source>
        <translation>Sensor c - defecto de corona dentada</translation>
    </message>
    <message>
        <source>Sensor c wheel slip</source>
        <translation>Sensor c - deslizamiento de rueda</translation>
    </message>
    <message>
        <source>Sensor c no speed</source>
        <translation>Sensor c - sin velocidad</translation>
    </message>
    <message>
        <source>Sensor c erratic speed signal</source>
        <translation>Sensor c - señal de velocidad errática</translation>
    </message>
    <message>
        <source>Sensor c chattering</source>
        <translation>Sensor c - vibraciones</translation>
    </message>
    <message>
        <source>Sensor c bad device or component</source>
        <translation>Sensor c - dispositivo o componente defectuoso</translation>
    </message>
    <message>
        <source>Sensor c wheel speed oscillating</source>
        <translation>Sensor c - velocidad de rueda oscilante</translation>
    </message>
    <message>
        <source>Sensor d air gap too large</source>
        <translation>Sensor d - entrehierro demasiado grande</translation>
    </message>
    <message>
        <source>Sensor d wheel speed diff.</source>
        <translation>Sensor d - diferencia de velocidad de rueda</translation>
    </message>
    <message>
        <source>Sensor d short to 12V</source>
        <translation>Sensor d - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Sensor d short to ground</source>
        <translation>Sensor d - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Sensor d open circuit</source>
        <translation>Sensor d - circuito abierto</translation>
    </message>
    <message>
        <source>Sensor d open or short circuit</source>
        <translation>Sensor d - circuito abierto o cortocircuito</translation>
    </message>
    <message>
        <source>Sensor d tone wheel defect</source>
        <translation>Sensor d - defecto de corona dentada</translation>
    </message>
    <message>
        <source>Sensor d wheel slip</source>
        <translation>Sensor d - deslizamiento de rueda</translation>
    </message>
    <message>
        <source>Sensor d no speed</source>
        <translation>Sensor d - sin velocidad</translation>
    </message>
    <message>
        <source>Sensor d erratic speed signal</source>
        <translation>Sensor d - señal de velocidad errática</translation>
    </message>
    <message>
        <source>Sensor d chattering</source>
        <translation>Sensor d - vibraciones</translation>
    </message>
    <message>
        <source>Sensor d bad device or component</source>
        <translation>Sensor d - dispositivo o componente defectuoso</translation>
    </message>
    <message>
        <source>Sensor d wheel speed oscillating</source>
        <translation>Sensor d - velocidad de rueda oscilante</translation>
    </message>
    <message>
        <source>Sensor e air gap too large</source>
        <translation>Sensor e - entrehierro demasiado grande</translation>
    </message>
    <message>
        <source>Sensor e wheel speed diff.</source>
        <translation>Sensor e - diferencia de velocidad de rueda</translation>
    </message>
    <message>
        <source>Sensor e short to 12V</source>
        <translation>Sensor e - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Sensor e short to ground</source>
        <translation>Sensor e - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Sensor e open circuit</source>
        <translation>Sensor e - circuito abierto</translation>
    </message>
    <message>
        <source>Sensor e open or short circuit</source>
        <translation>Sensor e - circuito abierto o cortocircuito</translation>
    </message>
    <message>
        <source>Sensor e tone wheel defect</source>
        <translation>Sensor e - defecto de corona dentada</translation>
    </message>
    <message>
        <source>Sensor e wheel slip</source>
        <translation>Sensor e - deslizamiento de rueda</translation>
    </message>
    <message>
        <source>Sensor e no speed</source>
        <translation>Sensor e - sin velocidad</translation>
    </message>
    <message>
        <source>Sensor e erratic speed signal</source>
        <translation>Sensor e - señal de velocidad errática</translation>
    </message>
    <message>
        <source>Sensor e chattering</source>
        <translation>Sensor e - vibraciones</translation>
    </message>
    <message>
        <source>Sensor e bad device or component</source>
        <translation>Sensor e - dispositivo o componente defectuoso</translation>
    </message>
    <message>
        <source>Sensor e wheel speed oscillating</source>
        <translation>Sensor e - velocidad de rueda oscilante</translation>
    </message>
    <message>
        <source>Sensor e sensor not found</source>
        <translation>Sensor e - sensor no encontrado</translation>
    </message>
    <message>
        <source>Sensor f air gap too large</source>
        <translation>Sensor f - entrehierro demasiado grande</translation>
    </message>
    <message>
        <source>Sensor f wheel speed diff.</source>
        <translation>Sensor f - diferencia de velocidad de rueda</translation>
    </message>
    <message>
        <source>Sensor f short to 12V</source>
        <translation>Sensor f - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Sensor f short to ground</source>
        <translation>Sensor f - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Sensor f open circuit</source>
        <translation>Sensor f - circuito abierto</translation>
    </message>
    <message>
        <source>Sensor f open or short circuit</source>
        <translation>Sensor f - circuito abierto o cortocircuito</translation>
    </message>
    <message>
        <source>Sensor f tone wheel defect</source>
        <translation>Sensor f - defecto de corona dentada</translation>
    </message>
    <message>
        <source>Sensor f wheel slip</source>
        <translation>Sensor f - deslizamiento de rueda</translation>
    </message>
    <message>
        <source>Sensor f no speed</source>
        <translation>Sensor f - sin velocidad</translation>
    </message>
    <message>
        <source>Sensor f erratic speed signal</source>
        <translation>Sensor f - señal de velocidad errática</translation>
    </message>
    <message>
        <source>Sensor f chattering</source>
        <translation>Sensor f - vibraciones</translation>
    </message>
    <message>
        <source>Sensor f bad device or component</source>
        <translation>Sensor f - dispositivo o componente defectuoso</translation>
    </message>
    <message>
        <source>Sensor f wheel speed oscillating</source>
        <translation>Sensor f - velocidad de rueda oscilante</translation>
    </message>
    <message>
        <source>Sensor f sensor not found</source>
        <translation>Sensor f - sensor no encontrado</translation>
    </message>
    <message>
        <source>ABS relay valve - short to 12V</source>
        <translation>Válvula relé ABS - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>ABS relay valve - short to ground</source>
        <translation>Válvula relé ABS - cortocircuito a masa</translation>
    </message>
    <message>
        <source>ABS relay valve - open circuit</source>
        <translation>Válvula relé ABS - circuito abierto</translation>
    </message>
    <message>
        <source>ABS relay valve - short to 12V or grnd</source>
        <translation>Válvula relé ABS - cortocircuito a +12V o a masa</translation>
    </message>
    <message>
        <source>H2 modulator - short to 12V</source>
        <translation>Modulador H2 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>H2 modulator - short to ground</source>
        <translation>Modulador H2 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>H2 modulator - open circuit</source>
        <translation>Modulador H2 - circuito abierto</translation>
    </message>
    <message>
        <source>H2 modulator - short to 12V or grnd</source>
        <translation>Modulador H2 - cortocircuito a +12V o a masa</translation>
    </message>
    <message>
        <source>H2 modulator - circuit failure</source>
        <translation>Modulador H2 - avería del circuito</translation>
    </message>
    <message>
        <source>H1 modulator - short to 12V</source>
        <translation>Modulador H1 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>H1 modulator - short to ground</source>
        <translation>Modulador H1 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>H1 modulator - open circuit</source>
        <translation>Modulador H1 - circuito abierto</translation>
    </message>
    <message>
        <source>H1 modulator - short to 12V or grnd</source>
        <translation>Modulador H1 - cortocircuito a +12V o a masa</translation>
    </message>
    <message>
        <source>H1 modulator - circuit failure</source>
        <translation>Modulador H1 - avería del circuito</translation>
    </message>
    <message>
        <source>EBS relay/Redundancy - short to 12V</source>
        <translation>Válvula relé EBS/Redundancia - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>EBS relay/Redundancy - short to ground</source>
        <translation>Válvula relé EBS/Redundancia - cortocircuito a masa</translation>
    </message>
    <message>
        <source>EBS relay/Redundancy - open circuit</source>
        <translation>Válvula relé EBS/Redundancia - circuito abierto</translation>
    </message>
    <message>
        <source>EBS relay/Redundancy - short to 12V or grnd</source>
        <translation>Válvula relé EBS/Redundancia - cortocircuito a +12V o a masa</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - short to 12V</source>
        <translation>Válvula relé EBS/Sensor de presión - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - short to ground</source>
        <translation>Válvula relé EBS/Sensor de presión - cortocircuito a masa</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - defective valve or cable</source>
        <translation>Válvula relé EBS/Sensor de presión - válvula o cable defectuoso</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - pressure differential</source>
        <translation>Válvula relé EBS/Sensor de presión - diferencia de presión</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - residual pressure</source>
        <translation>Válvula relé EBS/Sensor de presión - presión residual</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - short to 12V</source>
        <translation>Modulador del remolque/Redundancia - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - short to ground</source>
        <translation>Modulador del remolque/Redundancia - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - open circuit</source>
        <translation>Modulador del remolque/Redundancia - circuito abierto</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - short to 12V or grnd</source>
        <translation>Modulador del remolque/Redundancia - cortocircuito a +12V o a masa</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - circuit failure</source>
        <translation>Modulador del remolque/Redundancia - avería del circuito</translation>
    </message>
    <message>
        <source>Pressure sensor - pressure deviation</source>
        <translation>Sensor de presión - desviación de presión</translation>
    </message>
    <message>
        <source>Pressure sensor - short to 12V</source>
        <translation>Sensor de presión - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Pressure sensor - short to ground</source>
        <translation>Sensor de presión - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Pressure sensor - residual pressure</source>
        <translation>Sensor de presión - presión residual</translation>
    </message>
    <message>
        <source>Pressure sensor - pressure differential</source>
        <translation>Sensor de presión - diferencia de presión</translation>
    </message>
    <message>
        <source>Axle load sensor - irregular data</source>
        <translation>Sensor de carga del eje - datos irregulares</translation>
    </message>
    <message>
        <source>Axle load sensor - short to 12V</source>
        <translation>Sensor de carga del eje - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Axle load sensor - short to ground</source>
        <translation>Sensor de carga del eje - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Axle load sensor - open circuit</source>
        <translation>Sensor de carga del eje - circuito abierto</translation>
    </message>
    <message>
        <source>Axle load sensor - pressure too low</source>
        <translation>Sensor de carga del eje - presión demasiado baja</translation>
    </message>
    <message>
        <source>Axle load sensor - not calibrated</source>
        <translation>Sensor de carga del eje - no calibrado</translation>
    </message>
    <message>
        <source>Wear sensor - short to 12V</source>
        <translation>Sensor de desgaste - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Wear sensor - worn brake lining</source>
        <translation>Sensor de desgaste - forro de freno desgastado</translation>
    </message>
    <message>
        <source>Redundant braking - ABS still active</source>
        <translation>Frenado por redundancia - ABS todavía activo</translation>
    </message>
    <message>
        <source>Pneumatic control line - residual pressure</source>
        <translation>Línea de mando neumática - presión residual</translation>
    </message>
    <message>
        <source>Internal pressure sensor - value too high</source>
        <translation>Sensor de presión interno - valor demasiado alto</translation>
    </message>
    <message>
        <source>Internal pressure sensor - value too low</source>
        <translation>Sensor de presión interno - valor demasiado bajo</translation>
    </message>
    <message>
        <source>Internal pressure sensor - short to 12V</source>
        <translation>Sensor de presión interno - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Internal pressure sensor - short to ground</source>
        <translation>Sensor de presión interno - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Internal pressure sensor - open circuit</source>
        <translation>Sensor de presión interno - circuito abierto</translation>
    </message>
    <message>
        <source>Internal pressure sensor - defective cable</source>
        <translation>Sensor de presión interno - cable defectuoso</translation>
    </message>
    <message>
        <source>Internal pressure sensor - fault when driving</source>
        <translation>Sensor de presión interno - fallo durante la marcha</translation>
    </message>
    <message>
        <source>External pressure sensor - value too high</source>
        <translation>Sensor de presión externo - valor demasiado alto</translation>
    </message>
    <message>
        <source>External pressure sensor - value too low</source>
        <translation>Sensor de presión externo - valor demasiado bajo</translation>
    </message>
    <message>
        <source>External pressure sensor - short to 12V</source>
        <translation>Sensor de presión externo - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>External pressure sensor - short to ground</source>
        <translation>Sensor de presión externo - cortocircuito a masa</translation>
    </message>
    <message>
        <source>External pressure sensor - open circuit</source>
        <translation>Sensor de presión externo - circuito abierto</translation>
    </message>
    <message>
        <source>External pressure sensor - defective cable</source>
        <translation>Sensor de presión externo - cable defectuoso</translation>
    </message>
    <message>
        <source>External pressure sensor - fault when driving</source>
        <translation>Sensor de presión externo - fallo durante la marcha</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - value too high</source>
        <translation>Sensor de aceleración lateral - valor demasiado alto</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - value too low</source>
        <translation>Sensor de aceleración lateral - valor demasiado bajo</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - irregular data</source>
        <translation>Sensor de aceleración lateral - datos irregulares</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - bad signal</source>
        <translation>Sensor de aceleración lateral - señal defectuosa</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - fault when driving</source>
        <translation>Sensor de aceleración lateral - fallo durante la marcha</translation>
    </message>
    <message>
        <source>Slider status - short to 12V</source>
        <translation>Estado del tándem deslizante - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Slot GIO In/Out - short to 12V</source>
        <translation>Conector GIO entrada/salida - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Slot GIO In/Out - short to ground</source>
        <translation>Conector GIO entrada/salida - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Slot GIO In/Out - parameter not set</source>
        <translation>Conector GIO entrada/salida - parámetro no definido</translation>
    </message>
    <message>
        <source>GIO analog - short to 12V</source>
        <translation>GIO analógico - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO analog - short to ground</source>
        <translation>GIO analógico - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO analog - open circuit</source>
        <translation>GIO analógico - circuito abierto</translation>
    </message>
    <message>
        <source>GIO digital - short to 12V</source>
        <translation>GIO digital - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO digital - short to ground</source>
        <translation>GIO digital - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO digital - open circuit</source>
        <translation>GIO digital - circuito abierto</translation>
    </message>
    <message>
        <source>GIO Slot 5 - short to 12V</source>
        <translation>Conector GIO 5 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO Slot 5 - short to ground</source>
        <translation>Conector GIO 5 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO Slot 5 - parameter not set</source>
        <translation>Conector GIO 5 - parámetro no definido</translation>
    </message>
    <message>
        <source>GIO Slot 4 - short to 12V</source>
        <translation>Conector GIO 4 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO Slot 4 - short to ground</source>
        <translation>Conector GIO 4 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO Slot 4 - parameter not set</source>
        <translation>Conector GIO 4 - parámetro no definido</translation>
    </message>
    <message>
        <source>GIO Slot 3 - short to 12V</source>
        <translation>Conector GIO 3 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO Slot 3 - short to ground</source>
        <translation>Conector GIO 3 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO Slot 3 - parameter not set</source>
        <translation>Conector GIO 3 - parámetro no definido</translation>
    </message>
    <message>
        <source>GIO Slot 2 - short to 12V</source>
        <translation>Conector GIO 2 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO Slot 2 - short to ground</source>
        <translation>Conector GIO 2 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO Slot 2 - parameter not set</source>
        <translation>Conector GIO 2 - parámetro no definido</translation>
    </message>
    <message>
        <source>GIO Slot 1 - short to 12V</source>
        <translation>Conector GIO 1 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO Slot 1 - short to ground</source>
        <translation>Conector GIO 1 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO Slot 1 - parameter not set</source>
        <translation>Conector GIO 1 - parámetro no definido</translation>
    </message>
    <message>
        <source>GIO Slot 6 - short to 12V</source>
        <translation>Conector GIO 6 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO Slot 6 - short to ground</source>
        <translation>Conector GIO 6 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO Slot 6 - parameter not set</source>
        <translation>Conector GIO 6 - parámetro no definido</translation>
    </message>
    <message>
        <source>GIO Slot 7 - short to 12V</source>
        <translation>Conector GIO 7 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO Slot 7 - short to ground</source>
        <translation>Conector GIO 7 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO Slot 7 - parameter not set</source>
        <translation>Conector GIO 7 - parámetro no definido</translation>
    </message>
    <message>
        <source>ABS Sensor - Memory bit</source>
        <translation>Sensor ABS - bit de memoria</translation>
    </message>
    <message>
        <source>Slot subsystem - short to 12V</source>
        <translation>Conector subsistema - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Slot subsystem - short to ground</source>
        <translation>Conector subsistema - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Slot subsystem - parameter not set</source>
        <translation>Conector subsistema - parámetro no definido</translation>
    </message>
    <message>
        <source>Tension button - defective cable</source>
        <translation>Botón de tensado - cable defectuoso</translation>
    </message>
    <message>
        <source>Forced lowering button - digital</source>
        <translation>Botón de descenso forzado - digital</translation>
    </message>
    <message>
        <source>Relaxation button - digital</source>
        <translation>Botón de destensado - digital</translation>
    </message>
    <message>
        <source>Diagnostic socket - digital</source>
        <translation>Toma de diagnóstico - digital</translation>
    </message>
    <message>
        <source>Telematics - digital</source>
        <translation>Telemática - digital</translation>
    </message>
    <message>
        <source>TPMX - digital</source>
        <translation>TPMX - digital</translation>
    </message>
    <message>
        <source>SLEV control unit - bad connection</source>
        <translation>Unidad de control SLEV - mala conexión</translation>
    </message>
    <message>
        <source>SLEV control unit - defective cable</source>
        <translation>Unidad de control SLEV - cable defectuoso</translation>
    </message>
    <message>
        <source>Axle load sensor c-d - defective cable</source>
        <translation>Sensor de carga del eje c-d - cable defectuoso</translation>
    </message>
    <message>
        <source>Axle load sensor c-d - pressure too low</source>
        <translation>Sensor de carga del eje c-d - presión demasiado baja</translation>
    </message>
    <message>
        <source>Axle load sensor e-f - defective cable</source>
        <translation>Sensor de carga del eje e-f - cable defectuoso</translation>
    </message>
    <message>
        <source>Axle load sensor e-f - pressure too low</source>
        <translation>Sensor de carga del eje e-f - presión demasiado baja</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - data is irregular</source>
        <translation>Sensor de recorrido eje c-d - datos irregulares</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - short to 12V detected</source>
        <translation>Sensor de recorrido eje c-d - cortocircuito a +12V detectado</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - short to ground detected</source>
        <translation>Sensor de recorrido eje c-d - cortocircuito a masa detectado</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - defective cable</source>
        <translation>Sensor de recorrido eje c-d - cable defectuoso</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - value too small</source>
        <translation>Sensor de recorrido eje c-d - valor demasiado pequeño</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - not calibrated</source>
        <translation>Sensor de recorrido eje c-d - no calibrado</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - data is irregular</source>
        <translation>Sensor de recorrido eje e-f - datos irregulares</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - short to 12V</source>
        <translation>Sensor de recorrido eje e-f - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - short to ground</source>
        <translation>Sensor de recorrido eje e-f - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - defective cable</source>
        <translation>Sensor de recorrido eje e-f - cable defectuoso</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - value too small</source>
        <translation>Sensor de recorrido eje e-f - valor demasiado pequeño</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - not calibrated</source>
        <translation>Sensor de recorrido eje e-f - no calibrado</translation>
    </message>
    <message>
        <source>Freely programmable function 3</source>
        <translation>Función de libre programación 3</translation>
    </message>
    <message>
        <source>Freely programmable function 2</source>
        <translation>Función de libre programación 2</translation>
    </message>
    <message>
        <source>Freely programmable function 1</source>
        <translation>Función de libre programación 1</translation>
    </message>
    <message>
        <source>Unloading level switch - short to 12V</source>
        <translation>Interruptor de nivel de descarga - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Speed signal output - short to 12V</source>
        <translation>Salida de señal de velocidad - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Speed signal output - short to ground</source>
        <translation>Salida de señal de velocidad - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Speed signal output - open circuit</source>
        <translation>Salida de señal de velocidad - circuito abierto</translation>
    </message>
    <message>
        <source>Distance sensor e-f - incorrect data</source>
        <translation>Sensor de recorrido e-f - datos incorrectos</translation>
    </message>
    <message>
        <source>Distance sensor e-f - short to 12V</source>
        <translation>Sensor de recorrido e-f - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Distance sensor e-f - short to ground</source>
        <translation>Sensor de recorrido e-f - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Distance sensor e-f - open circuit</source>
        <translation>Sensor de recorrido e-f - circuito abierto</translation>
    </message>
    <message>
        <source>Distance sensor c-d - incorrect data</source>
        <translation>Sensor de recorrido c-d - datos incorrectos</translation>
    </message>
    <message>
        <source>Distance sensor c-d - short to 12V</source>
        <translation>Sensor de recorrido c-d - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Distance sensor c-d - short to ground</source>
        <translation>Sensor de recorrido c-d - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Distance sensor c-d - open circuit</source>
        <translation>Sensor de recorrido c-d - circuito abierto</translation>
    </message>
    <message>
        <source>SLEV valve - short to 12V</source>
        <translation>Válvula SLEV - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>SLEV valve - short to ground</source>
        <translation>Válvula SLEV - cortocircuito a masa</translation>
    </message>
    <message>
        <source>SLEV valve - open circuit</source>
        <translation>Válvula SLEV - circuito abierto</translation>
    </message>
    <message>
        <source>Steady positive voltage 2 - short to 12V</source>
        <translation>Tensión positiva permanente 2 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Steady positive voltage 2 - short to ground</source>
        <translation>Tensión positiva permanente 2 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Steady positive voltage 2 - open circuit</source>
        <translation>Tensión positiva permanente 2 - circuito abierto</translation>
    </message>
    <message>
        <source>Steady pos. voltage 1 - short to 12V</source>
        <translation>Tensión pos. permanente 1 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Steady pos. voltage 1 - short to grnd</source>
        <translation>Tensión pos. permanente 1 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Steady pos. voltage 1 - open circuit</source>
        <translation>Tensión pos. permanente 1 - circuito abierto</translation>
    </message>
    <message>
        <source>OVG active signal - short to 12V</source>
        <translation>Señal de OVG activo - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>OVG active signal - short to ground</source>
        <translation>Señal de OVG activo - cortocircuito a masa</translation>
    </message>
    <message>
        <source>OVG active signal - open circuit</source>
        <translation>Señal de OVG activo - circuito abierto</translation>
    </message>
    <message>
        <source>ABS active signal - short to 12V</source>
        <translation>Señal de ABS activo - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>ABS active signal - short to ground</source>
        <translation>Señal de ABS activo - cortocircuito a masa</translation>
    </message>
    <message>
        <source>ABS active signal - open circuit</source>
        <translation>Señal de ABS activo - circuito abierto</translation>
    </message>
    <message>
        <source>Road finisher brake - short to 12V</source>
        <translation>Freno para extendedora - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Speed switch 2 - short to 12V</source>
        <translation>Interruptor de velocidad 2 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Speed switch 2 - short to ground</source>
        <translation>Interruptor de velocidad 2 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Speed switch 2 - open circuit</source>
        <translation>Interruptor de velocidad 2 - circuito abierto</translation>
    </message>
    <message>
        <source>Speed switch 1 - short to 12V</source>
        <translation>Interruptor de velocidad 1 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Speed switch 1 - short to ground</source>
        <translation>Interruptor de velocidad 1 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Speed switch 1 - open circuit</source>
        <translation>Interruptor de velocidad 1 - circuito abierto</translation>
    </message>
    <message>
        <source>Residual pressure valve - short to 12V</source>
        <translation>Válvula de presión residual - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Residual pressure valve - short to ground</source>
        <translation>Válvula de presión residual - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Residual pressure valve - open circuit</source>
        <translation>Válvula de presión residual - circuito abierto</translation>
    </message>
    <message>
        <source>Lift axle valve 2 - short to 12V</source>
        <translation>Válvula de eje elevable 2 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Lift axle valve 2 - short to ground</source>
        <translation>Válvula de eje elevable 2 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Lift axle valve 2 - open circuit</source>
        <translation>Válvula de eje elevable 2 - circuito abierto</translation>
    </message>
    <message>
        <source>Lift axle valve 1 - short to 12V</source>
        <translation>Válvula de eje elevable 1 - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Lift axle valve 1 - short to ground</source>
        <translation>Válvula de eje elevable 1 - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Lift axle valve 1 - open circuit</source>
        <translation>Válvula de eje elevable 1 - circuito abierto</translation>
    </message>
    <message>
        <source>Supply pressure sensor - value too high</source>
        <translation>Sensor de presión de alimentación - valor demasiado alto</translation>
    </message>
    <message>
        <source>Supply pressure sensor - value too low</source>
        <translation>Sensor de presión de alimentación - valor demasiado bajo</translation>
    </message>
    <message>
        <source>Supply pressure sensor - short to 12V</source>
        <translation>Sensor de presión de alimentación - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Supply pressure sensor - short to ground</source>
        <translation>Sensor de presión de alimentación - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Supply pressure sensor - err while driving</source>
        <translation>Sensor de presión de alimentación - error durante la marcha</translation>
    </message>
    <message>
        <source>KRN - short to 12V</source>
        <translation>KRN - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>KRN - short to ground</source>
        <translation>KRN - cortocircuito a masa</translation>
    </message>
    <message>
        <source>KRN - open circuit</source>
        <translation>KRN - circuito abierto</translation>
    </message>
    <message>
        <source>SLEV - short to 12V</source>
        <translation>SLEV - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>SLEV - short to ground</source>
        <translation>SLEV - cortocircuito a masa</translation>
    </message>
    <message>
        <source>SLEV - open circuit</source>
        <translation>SLEV - circuito abierto</translation>
    </message>
    <message>
        <source>SLEV - communications interrupted</source>
        <translation>SLEV - comunicación interrumpida</translation>
    </message>
    <message>
        <source>SLEV calibration - incorrect data</source>
        <translation>Calibración SLEV - datos incorrectos</translation>
    </message>
    <message>
        <source>GIO/SLEV - irregular data</source>
        <translation>GIO/SLEV - datos irregulares</translation>
    </message>
    <message>
        <source>GIO/SLEV - short to 12V</source>
        <translation>GIO/SLEV - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>GIO/SLEV - short to ground</source>
        <translation>GIO/SLEV - cortocircuito a masa</translation>
    </message>
    <message>
        <source>GIO/SLEV - open circuit</source>
        <translation>GIO/SLEV - circuito abierto</translation>
    </message>
    <message>
        <source>GIO/SLEV - missing parameters</source>
        <translation>GIO/SLEV - faltan parámetros</translation>
    </message>
    <message>
        <source>J2497 data link - irregular data</source>
        <translation>Enlace de datos J2497 - datos irregulares</translation>
    </message>
    <message>
        <source>J2497 data link - residual pressure</source>
        <translation>Enlace de datos J2497 - presión residual</translation>
    </message>
    <message>
        <source>J1708 data link - irregular data</source>
        <translation>Enlace de datos J1708 - datos irregulares</translation>
    </message>
    <message>
        <source>J1708 data link - residual pressure</source>
        <translation>Enlace de datos J1708 - presión residual</translation>
    </message>
    <message>
        <source>Trailer data link - interference in data reception</source>
        <translation>Enlace de datos del remolque - interferencias en la recepción de datos</translation>
    </message>
    <message>
        <source>Trailer data link - bad or swapped cable</source>
        <translation>Enlace de datos del remolque - cable defectuoso o intercambiado</translation>
    </message>
    <message>
        <source>Power supply - value too low</source>
        <translation>Alimentación eléctrica - valor demasiado bajo</translation>
    </message>
    <message>
        <source>Power supply - stop light power</source>
        <translation>Alimentación eléctrica - alimentación por las luces de freno</translation>
    </message>
    <message>
        <source>Power supply - value too high</source>
        <translation>Alimentación eléctrica - valor demasiado alto</translation>
    </message>
    <message>
        <source>Power supply - short to ground</source>
        <translation>Alimentación eléctrica - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Power supply - circuit interrupt</source>
        <translation>Alimentación eléctrica - circuito interrumpido</translation>
    </message>
    <message>
        <source>Power supply - undervoltage</source>
        <translation>Alimentación eléctrica - subtensión</translation>
    </message>
    <message>
        <source>Parameter setting - irregular data</source>
        <translation>Parametrización - datos irregulares</translation>
    </message>
    <message>
        <source>Parameter setting - checksum error</source>
        <translation>Parametrización - error de suma de comprobación</translation>
    </message>
    <message>
        <source>Parameter setting - start-up not run</source>
        <translation>Parametrización - puesta en servicio no realizada</translation>
    </message>
    <message>
        <source>Trailer modulator - short to 12V</source>
        <translation>Modulador del remolque - cortocircuito a +12V</translation>
    </message>
    <message>
        <source>Trailer modulator - short to Ground</source>
        <translation>Modulador del remolque - cortocircuito a masa</translation>
    </message>
    <message>
        <source>Trailer modulator - service needed</source>
        <translation>Modulador del remolque - mantenimiento necesario</translation>
    </message>
    <message>
        <source>Trailer modulator - defective</source>
        <translation>Modulador del remolque - defectuoso</translation>
    </message>
    <message>
        <source>System error</source>
        <translation>Error del sistema</translation>
    </message>
    <message>
        <source>Pressure measurement value too high. Check for kinked line.  Compare pressure gauge reading with Lorimet value of the pressure sensor.</source>
        <translation>Valor de presión medido demasiado alto. Comprobar si el conducto está doblado. Comparar la lectura del manómetro con el valor de Lorimet del sensor de presión.</translation>
    </message>
    <message>
        <source>Pressure measurement value too low. Check for kinked line or blocked filter.  Compare pressure gauge reading with Lorimet value of the pressure sensor.</source>
        <translation>Valor de presión medido demasiado bajo. Comprobar si el conducto está doblado o el filtro obstruido. Comparar la lectura del manómetro con el valor de Lorimet del sensor de presión.</translation>
    </message>
    <message>
        <source>The pressure in the support bellows of the air suspension is too low when driving.</source>
        <translation>La presión en los fuelles portantes de la suspensión neumática es demasiado baja durante la marcha.</translation>
    </message>
    <message>
        <source>Deviation between the pneumatic control pressure and control pressure via CAN. Was the yellow coupling head connected the whole time? Check the towing vehicle.</source>
        <translation>Desviación entre la presión de mando neumática y la presión de mando por CAN. ¿Ha estado conectada todo el tiempo la cabeza de acoplamiento amarilla? Comprobar el vehículo tractor.</translation>
    </message>
    <message>
        <source>Open or short circuit is detected.  Cable or speed sensor is defective.</source>
        <translation>Circuito abierto o cortocircuito detectado. Cable o sensor de velocidad defectuoso.</translation>
    </message>
    <message>
        <source>Switch ignition off for 5 seconds.</source>
        <translation>Quitar el contacto durante 5 segundos.</translation>
    </message>
    <message>
        <source>Push sensor into holding block for zero gap to tooth wheel.  Check tone ring for damaged teeth.  Check for excessive wheel bearing play.</source>
        <translation>Empujar el sensor en su soporte hasta que toque la corona dentada (entrehierro nulo). Comprobar si la corona dentada tiene dientes dañados. Comprobar si hay holgura excesiva en el rodamiento de la rueda.</translation>
    </message>
    <message>
        <source>Impermissible modulator position.  Check the installation position.  Calibrate the installation position after changing the modulator angle.</source>
        <translation>Posición del modulador no admisible. Comprobar la posición de montaje. Calibrar la posición de montaje después de modificar el ángulo del modulador.</translation>
    </message>
    <message>
        <source>A component for which there are no parameter settings was detected at slot GIO In/Out.</source>
        <translation>Se ha detectado en el conector GIO entrada/salida un componente sin parametrización.</translation>
    </message>
    <message>
        <source>Speed difference between axles c-d and e-f too high.  Check whether the number of tone wheel teeth and tire diameter are correct.</source>
        <translation>Diferencia de velocidad demasiado alta entre los ejes c-d y e-f. Comprobar si el número de dientes de la corona dentada y el diámetro de los neumáticos son correctos.</translation>
    </message>
    <message>
        <source>Calibrate the distance sensor.</source>
        <translation>Calibrar el sensor de recorrido.</translation>
    </message>
    <message>
        <source>There is a fault in the freely programmable function.</source>
        <translation>Hay un fallo en la función de libre programación.</translation>
    </message>
    <message>
        <source>Check tone ring/hub for eccentricity. If tone ring/hub is eccentric, replace faulty part.</source>
        <translation>Comprobar la excentricidad de la corona dentada/del buje. Si la corona dentada/el buje está excéntrico, sustituir la pieza defectuosa.</translation>
    </message>
    <message>
        <source>Check cable for pinch/cut and check connectors.</source>
        <translation>Comprobar si el cable está aplastado/cortado y revisar los conectores.</translation>
    </message>
    <message>
        <source>Check Axle Load Sensor cable for pinch/cut and check connectors.</source>
        <translation>Comprobar si el cable del sensor de carga del eje está aplastado/cortado y revisar los conectores.</translation>
    </message>
    <message>
        <source>Turn ignition off for 5 seconds.</source>
        <translation>Quitar el contacto durante 5 segundos.</translation>
    </message>
    <message>
        <source>The wear sensor or the cable between the modulator and the wear sensor is faulty.</source>
        <translation>El sensor de desgaste o el cable entre el modulador y el sensor de desgaste está defectuoso.</translation>
    </message>
    <message>
        <source>At least one brake lining is worn.  Check linings and wear sensors and replace if necessary. It is also possible that the cable is not connected or is defective.</source>
        <translation>Al menos un forro de freno está desgastado. Comprobar los forros y los sensores de desgaste y sustituirlos si es necesario. También es posible que el cable no esté conectado o esté defectuoso.</translation>
    </message>
    <message>
        <source>Braking with redundancy pressure - ABS still active.</source>
        <translation>Frenado con presión de redundancia - ABS todavía activo.</translation>
    </message>
    <message>
        <source>Pressure differential &gt; 30 psi between pressure sensors in the EBS RV and the modulator during the standstill function. Is a line kinked?  If the pneumatic system is OK, fit a new pressure sensor.</source>
        <translation>Diferencia de presión &gt; 30 psi entre los sensores de presión de la válvula relé EBS y del modulador durante la función con el vehículo parado. ¿Hay un conducto doblado? Si el sistema neumático está bien, montar un sensor de presión nuevo.</translation>
    </message>
    <message>
        <source>9.5 to 14.0 volts DC required to proceed.  Be sure to use a filtered power supply or battery.  DO NOT USE A BATTERY CHARGER!</source>
        <translation>Se necesitan de 9.5 a 14.0 V CC para continuar. Utilizar siempre una fuente de alimentación filtrada o una batería. ¡NO UTILIZAR UN CARGADOR DE BATERÍAS!</translation>
    </message>
    <message>
        <source>9.5 to 14.0 volts DC required to proceed. Be sure to use a filtered power supply or battery. DO NOT USE A BATTERY CHARGER!</source>
        <translation>Se necesitan de 9.5 a 14.0 V CC para continuar. Utilizar siempre una fuente de alimentación filtrada o una batería. ¡NO UTILIZAR UN CARGADOR DE BATERÍAS!</translation>
    </message>
    <message>
        <source>Does power supply have an adequate current rating? Check that all power and ground connections are solid. 9.5 to 14.0 volts DC required at ECU.</source>
        <translation>¿Tiene la fuente de alimentación una corriente nominal suficiente? Comprobar que todas las conexiones de alimentación eléctrica y de masa son firmes. Se necesitan de 9.5 a 14.0 V CC en la ECU.</translation>
    </message>
    <message>
        <source>Call Norvick for customer support and return authorization number if problem persists.</source>
        <translation>Si el problema persiste, contactar con Norvick para obtener asistencia al cliente y un número de autorización de devolución.</translation>
    </message>
    <message>
        <source>Vehicle has not been put into operation.  Please run initial start-up routine.</source>
        <translation>El vehículo no ha sido puesto en servicio. Ejecute el procedimiento de primera puesta en servicio.</translation>
    </message>
    <message>
        <source>Residual pressure &gt; 7 psi at connection 2 of the EBS relay valve during motion with brakes released.</source>
        <translation>Presión residual &gt; 7 psi en la conexión 2 de la válvula relé EBS durante la marcha con los frenos liberados.</translation>
    </message>
    <message>
        <source>Pressure deviation between connections 2.1 and 2.2 of the modulator &gt; 0.5 bar during braking. Is there a pressure leak through the leaking Ovalock brake actuator? Is the exhaust iced up? Fault condition: Pressure difference in EBS regulation right/left &gt; .</source>
        <translation>Desviación de presión &gt; 0.5 bar entre las conexiones 2.1 y 2.2 del modulador durante el frenado. ¿Hay pérdida de presión por un cilindro de freno Ovalock con fugas? ¿Está obstruido por hielo el orificio de purga de aire? Condición del fallo: diferencia de presión derecha/izquierda en la regulación EBS &gt; .</translation>
    </message>
    <message>
        <source>Residual pressure &gt; 15 psi in the line to the brake cylinder.  If this fault can be ruled out: fit a new modulator.</source>
        <translation>Presión residual &gt; 15 psi en el conducto hacia el cilindro de freno. Si se puede descartar este fallo: montar un modulador nuevo.</translation>
    </message>
    <message>
        <source>Pressure differential &gt; 2 bar between the two brake pressure sensors in the modulator during the standstill function.  Is there a severe leak on a brake cylinder? If the pneumatic system is OK, fit a new modulator.</source>
        <translation>Diferencia de presión &gt; 2 bar entre los dos sensores de presión de frenado del modulador durante la función con el vehículo parado. ¿Hay una fuga importante en un cilindro de freno? Si el sistema neumático está bien, montar un modulador nuevo.</translation>
    </message>
    <message>
        <source>Residual pressure &gt; 7 psi at connection 2.1 or 2.2 of the modulator during motion with brakes released.</source>
        <translation>Presión residual &gt; 7 psi en la conexión 2.1 o 2.2 del modulador durante la marcha con los frenos liberados.</translation>
    </message>
    <message>
        <source>No axle load transmitted from the ECU.</source>
        <translation>La ECU no transmite la carga del eje.</translation>
    </message>
    <message>
        <source>GIO shorted to battery.  Call Norvick for customer support.</source>
        <translation>GIO en cortocircuito con el positivo de la batería. Llamar a la asistencia al cliente de Norvick.</translation>
    </message>
    <message>
        <source>GIO shorted to ground.  Call Norvick for customer support.</source>
        <translation>GIO en cortocircuito a masa. Llamar a la asistencia al cliente de Norvick.</translation>
    </message>
    <message>
        <source>GIO cable broken.  Call Norvick for customer support.</source>
        <translation>Cable GIO roto. Llamar a la asistencia al cliente de Norvick.</translation>
    </message>
    <message>
        <source>GIO logic failure.  Download the GIO parameter settings again and restart the ECU.  If fault persists, call Norvick for customer support.</source>
        <translation>Avería lógica de GIO. Transferir de nuevo la parametrización GIO a la ECU y reiniciar la ECU. Si el fallo persiste, llamar a la asistencia al cliente de Norvick.</translation>
    </message>
    <message>
        <source>The GIO sensor power supply voltage is either too high or too low.  Call Norvick for customer support.</source>
        <translation>La tensión de alimentación del sensor GIO es demasiado alta o demasiado baja. Llamar a la asistencia al cliente de Norvick.</translation>
    </message>
    <message>
        <source>The GIO sensor power supply is not on.  Call Norvick for customer support.</source>
        <translation>La alimentación eléctrica del sensor GIO no está activa. Llamar a la asistencia al cliente de Norvick.</translation>
    </message>
    <message>
        <source>The pole wheel is eccentric.  Check the concentricity of the pole wheel and replace, if necessary.</source>
        <translation>La corona dentada está excéntrica. Comprobar la concentricidad de la corona dentada y sustituirla si es necesario.</translation>
    </message>
    <message>
        <source>System configuration error detected. An external valve or two sensors are not being detected. Connect them or reconfigure ECU using reconfigure option from menu.</source>
        <translation>Error de configuración del sistema detectado. No se detecta una válvula externa o dos sensores. Conectarlos o reconfigurar la ECU con la opción de reconfiguración del menú.</translation>
    </message>
    <message>
        <source>Erase faults using menu option, power down, power up. If fault repeats, call Norvick customer support for technical support and return authorization claim number.</source>
        <translation>Borrar los fallos con la opción del menú, cortar y restablecer la alimentación eléctrica de la ECU. Si el fallo se repite, llamar a la asistencia al cliente de Norvick para obtener ayuda técnica y un número de solicitud de autorización de devolución.</translation>
    </message>
    <message>
        <source>Repair instruction not available for the current fault.</source>
        <translation>Instrucción de reparación no disponible para el fallo actual.</translation>
    </message>
    <message>
        <source>Axle Loads and Pressures</source>
        <translation>Cargas de los ejes y presiones</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Remolque</translation>
    </message>
    <message>
        <source>Tires and Pole Wheels</source>
        <translation>Neumáticos y coronas dentadas</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Hacia delante</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Words to look for</source>
        <translation>Palabras que buscar</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Páginas encontradas</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Página de ayuda</translation>
    </message>
    <message>
        <source>The help pages were not found.</source>
        <translation>No se han encontrado las páginas de ayuda.</translation>
    </message>
    <message>
        <source>They were looked for in these folders:</source>
        <translation>Se han buscado en estas carpetas:</translation>
    </message>
    <message>
        <source>No page holds all of these words.</source>
        <translation>Ninguna página contiene todas estas palabras.</translation>
    </message>
    <message>
        <source>Zelt Pressure Test</source>
        <translation>Prueba de presión Zelt</translation>
    </message>
    <message>
        <source>Supply Pressure</source>
        <translation>Presión de alimentación</translation>
    </message>
    <message>
        <source>Demand Pressure</source>
        <translation>Presión solicitada</translation>
    </message>
    <message>
        <source>Control Pressure</source>
        <translation>Presión de mando</translation>
    </message>
    <message>
        <source>Target Pressure</source>
        <translation>Presión de consigna</translation>
    </message>
    <message>
        <source>Actual Pressure</source>
        <translation>Presión real</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Brake Pressure  Laden  Modulator H1</source>
        <translation>Presión de frenado  En carga  Modulador H1</translation>
    </message>
    <message>
        <source>Brake Pressure  Laden  Modulator H2</source>
        <translation>Presión de frenado  En carga  Modulador H2</translation>
    </message>
    <message>
        <source>Brake Pressure  Unladen  Modulator H1</source>
        <translation>Presión de frenado  En vacío  Modulador H1</translation>
    </message>
    <message>
        <source>Brake Pressure  Unladen  Modulator H2</source>
        <translation>Presión de frenado  En vacío  Modulador H2</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>Start the Pressure Test</source>
        <translation>Iniciar la prueba de presión</translation>
    </message>
    <message>
        <source>Close this form</source>
        <translation>Cerrar esta ventana</translation>
    </message>
    <message>
        <source>Redundancy Test</source>
        <translation>Prueba de redundancia</translation>
    </message>
    <message>
        <source>St&amp;art</source>
        <translation>I&amp;niciar</translation>
    </message>
    <message>
        <source>Start the Redundancy Test</source>
        <translation>Iniciar la prueba de redundancia</translation>
    </message>
    <message>
        <source>Stop the Redundancy Test</source>
        <translation>Detener la prueba de redundancia</translation>
    </message>
    <message>
        <source>Close the form</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>QOR Plus Sensor Test</source>
        <translation>Prueba de sensores QOR Plus</translation>
    </message>
    <message>
        <source>Order Expected</source>
        <translation>Orden previsto</translation>
    </message>
    <message>
        <source>Order Seen</source>
        <translation>Orden observado</translation>
    </message>
    <message>
        <source>  Max Speed (mph)</source>
        <translation>  Velocidad máx. (mph)</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>De&amp;tener</translation>
    </message>
    <message>
        <source>Start Sensor Test</source>
        <translation>Iniciar la prueba de sensores</translation>
    </message>
    <message>
        <source>Stop Sensor Test</source>
        <translation>Detener la prueba de sensores</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>Hacia atrás</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>n/a</source>
        <translation>n/d</translation>
    </message>
    <message>
        <source>Sensor Test Warning</source>
        <translation>Advertencia - Prueba de sensores</translation>
    </message>
    <message>
        <source>Secure the vehicle to prevent it from running off and release the hand brake.</source>
        <translation>Inmovilice el vehículo para que no pueda rodar y después libere el freno de estacionamiento.</translation>
    </message>
    <message>
        <source>This test checks the correct assignment of the ABS sensors to the modulators. </source>
        <translation>Esta prueba comprueba que los sensores ABS están asignados a los moduladores correctos. </translation>
    </message>
    <message>
        <source>It requires that the wheels be spun in a predetermined order.  </source>
        <translation>Hay que hacer girar las ruedas en un orden predeterminado.  </translation>
    </message>
    <message>
        <source>It is applicable to QOR Plus ECU&apos;s only.</source>
        <translation>Solo se aplica a las ECU QOR Plus.</translation>
    </message>
    <message>
        <source>Click START to begin test or CLOSE to exit.</source>
        <translation>Haga clic en INICIAR para comenzar la prueba o en CERRAR para salir.</translation>
    </message>
    <message>
        <source>Reservoir pressure must be &gt; 72.5 psi.  Increase pressure.</source>
        <translation>La presión del depósito de aire debe ser &gt; 72.5 psi. Aumente la presión.</translation>
    </message>
    <message>
        <source>The vehicle is not at a standstill! Click STOP to end testing.</source>
        <translation>¡El vehículo no está parado! Haga clic en DETENER para terminar la prueba.</translation>
    </message>
    <message>
        <source>Spin Tire 1 as shown on the diagram...</source>
        <translation>Haga girar la rueda 1 como se indica en el esquema...</translation>
    </message>
    <message>
        <source>Now Spin Tire 2 as shown on the diagram...</source>
        <translation>Ahora haga girar la rueda 2 como se indica en el esquema...</translation>
    </message>
    <message>
        <source>Now Spin Tire 3 as shown on the diagram...</source>
        <translation>Ahora haga girar la rueda 3 como se indica en el esquema...</translation>
    </message>
    <message>
        <source>Now Spin Tire 4 as shown on the diagram...</source>
        <translation>Ahora haga girar la rueda 4 como se indica en el esquema...</translation>
    </message>
    <message>
        <source> -Sensor Test-</source>
        <translation> -Prueba de sensores-</translation>
    </message>
    <message>
        <source> Sensor Test Error!!!</source>
        <translation> ¡¡¡Error en la prueba de sensores!!!</translation>
    </message>
    <message>
        <source>Sensor Order does NOT match configuration! Click STOP to end testing.</source>
        <translation>¡El orden de los sensores NO coincide con la configuración! Haga clic en DETENER para terminar la prueba.</translation>
    </message>
    <message>
        <source>All Sensors tested, Click STOP to end testing.</source>
        <translation>Todos los sensores están probados. Haga clic en DETENER para terminar la prueba.</translation>
    </message>
    <message>
        <source>c</source>
        <translation>c</translation>
    </message>
    <message>
        <source>d</source>
        <translation>d</translation>
    </message>
    <message>
        <source>e</source>
        <translation>e</translation>
    </message>
    <message>
        <source>f</source>
        <translation>f</translation>
    </message>
    <message>
        <source>Do You See The Warning Lamp Blinking ON and OFF?</source>
        <translation>¿Ve parpadear la lámpara de aviso (encenderse y apagarse)?</translation>
    </message>
    <message>
        <source>Status of the Valve Activation</source>
        <translation>Estado de la activación de las válvulas</translation>
    </message>
    <message>
        <source>Warning Lamp ON/OFF Indicator</source>
        <translation>Indicador de la lámpara de aviso (ENCENDIDA/APAGADA)</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Close the Form</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>Test the Warning Lamp</source>
        <translation>Probar la lámpara de aviso</translation>
    </message>
    <message>
        <source>Mechanical Suspension Height Sensor Calibration</source>
        <translation>Calibración del sensor de altura (suspensión mecánica)</translation>
    </message>
    <message>
        <source>Attention !!  Calibration must be performed when the vehicle is UNLADEN !!</source>
        <translation>¡¡Atención!! ¡¡La calibración debe realizarse con el vehículo EN VACÍO!!</translation>
    </message>
    <message>
        <source>Position the lever of the distance sensor horizontally and secure it against the distance sensor linkage.  Then start calibration !</source>
        <translation>Coloque la palanca del sensor de recorrido en posición horizontal y fíjela contra el varillaje del sensor de recorrido. ¡Después inicie la calibración!</translation>
    </message>
    <message>
        <source>Permissible range for calibration : 1141 - 1486  counts</source>
        <translation>Rango admisible para la calibración: 1141 - 1486 cuentas</translation>
    </message>
    <message>
        <source>Height sensor c-d :</source>
        <translation>Sensor de altura c-d:</translation>
    </message>
    <message>
        <source>Height sensor e-f :</source>
        <translation>Sensor de altura e-f:</translation>
    </message>
    <message>
        <source>Calibrate height sensor c-d</source>
        <translation>Calibrar el sensor de altura c-d</translation>
    </message>
    <message>
        <source>Calibrate height sensor e-f</source>
        <translation>Calibrar el sensor de altura e-f</translation>
    </message>
    <message>
        <source>Height Sensor Calibration</source>
        <translation>Calibración del sensor de altura</translation>
    </message>
    <message>
        <source>Height Sensor Calibration Successful.</source>
        <translation>Calibración del sensor de altura correcta.</translation>
    </message>
    <message>
        <source>Height Sensor Calibration Failed!!</source>
        <translation>¡¡Calibración del sensor de altura fallida!!</translation>
    </message>
    <message>
        <source>Trailer 1 On</source>
        <translation>Remolque 1: encender</translation>
    </message>
    <message>
        <source>Trailer 1 Off</source>
        <translation>Remolque 1: apagar</translation>
    </message>
    <message>
        <source>Customer EOL Bit</source>
        <translation>Bit EOL del cliente</translation>
    </message>
    <message>
        <source>Current Status:</source>
        <translation>Estado actual:</translation>
    </message>
    <message>
        <source>EOL Test Passed</source>
        <translation>Prueba EOL superada</translation>
    </message>
    <message>
        <source>EOL Test Not Passed</source>
        <translation>Prueba EOL no superada</translation>
    </message>
    <message>
        <source>&amp;Set EOL to &apos;Pass&apos;</source>
        <translation>&amp;Establecer EOL en «Superada»</translation>
    </message>
    <message>
        <source>Set EOL to &apos;Fail&apos;</source>
        <translation>Establecer EOL en «No superada»</translation>
    </message>
    <message>
        <source>Lamp Test Failed.  Please resolve issues and run test again.</source>
        <translation>Prueba de lámpara no superada. Elimine las causas y repita la prueba.</translation>
    </message>
    <message>
        <source>Height Sensor Calibration Failed.  Please resolve issues and run test again.</source>
        <translation>Calibración del sensor de altura fallida. Elimine las causas y repita la prueba.</translation>
    </message>
    <message>
        <source>Calibration Failed!</source>
        <translation>¡Calibración fallida!</translation>
    </message>
    <message>
        <source>Corbel software has determined that the optional Stop Light Activation Cable should have been installed.  </source>
        <translation>El software Corbel ha determinado que el cable opcional de activación de las luces de freno debería estar instalado.  </translation>
    </message>
    <message>
        <source>This feature can be tested from the Main screen using the TESTS pull-down.  </source>
        <translation>Esta función se puede probar desde la ventana principal con el menú PRUEBAS.  </translation>
    </message>
    <message>
        <source>You must have functional trailer stop lights attached in order to perform this test.</source>
        <translation>Para realizar esta prueba, deben estar conectadas luces de freno de remolque en buen estado.</translation>
    </message>
    <message>
        <source>Setting End-of-line Bit</source>
        <translation>Estableciendo el bit de fin de línea</translation>
    </message>
    <message>
        <source>Unable to clear the End of Line bit.</source>
        <translation>No se puede borrar el bit de fin de línea.</translation>
    </message>
    <message>
        <source>Sign-off Failure</source>
        <translation>Aprobación fallida</translation>
    </message>
    <message>
        <source>Sign-off Complete</source>
        <translation>Aprobación terminada</translation>
    </message>
    <message>
        <source>All tests passed.  End-of-line bit set.</source>
        <translation>Todas las pruebas superadas. Bit de fin de línea establecido.</translation>
    </message>
    <message>
        <source>Do you want to save the data?</source>
        <translation>¿Desea guardar los datos?</translation>
    </message>
    <message>
        <source>Do you want to print the data?</source>
        <translation>¿Desea imprimir los datos?</translation>
    </message>
    <message>
        <source>Norvick OVG End-of-Line Report</source>
        <translation>Informe de fin de línea OVG de Norvick</translation>
    </message>
    <message>
        <source>Norvick End-of-Line Report</source>
        <translation>Informe de fin de línea de Norvick</translation>
    </message>
    <message>
        <source>Norvick OVG Fault Report</source>
        <translation>Informe de fallos OVG de Norvick</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Time :</source>
        <translation>Hora:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>VIN</source>
        <translation>VIN</translation>
    </message>
    <message>
        <source>Trailer Type</source>
        <translation>Tipo de remolque</translation>
    </message>
    <message>
        <source>ABS System Config</source>
        <translation>Config. del sistema ABS</translation>
    </message>
    <message>
        <source>ECU Revision</source>
        <translation>Revisión de la ECU</translation>
    </message>
    <message>
        <source>Date of Manufacture</source>
        <translation>Fecha de fabricación</translation>
    </message>
    <message>
        <source>ECU Orientation</source>
        <translation>Orientación de la ECU</translation>
    </message>
    <message>
        <source>Facing Front</source>
        <translation>Hacia delante</translation>
    </message>
    <message>
        <source>Facing Rear</source>
        <translation>Hacia atrás</translation>
    </message>
    <message>
        <source>Not Applicable</source>
        <translation>No aplicable</translation>
    </message>
    <message>
        <source>Not Available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source> #  </source>
        <translation> #  </translation>
    </message>
    <message>
        <source> #</source>
        <translation> #</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Veces</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>(No Description Available)</source>
        <translation>(Descripción no disponible)</translation>
    </message>
    <message>
        <source>No Faults Detected - System OK</source>
        <translation>Ningún fallo detectado - sistema en buen estado</translation>
    </message>
    <message>
        <source>End-of-Line Test Results</source>
        <translation>Resultados de las pruebas de fin de línea</translation>
    </message>
    <message>
        <source>End-of-Line Test Results:</source>
        <translation>Resultados de las pruebas de fin de línea:</translation>
    </message>
    <message>
        <source>   Pressure Test   </source>
        <translation>   Prueba de presión   </translation>
    </message>
    <message>
        <source>   Redundancy Test </source>
        <translation>   Prueba de redundancia </translation>
    </message>
    <message>
        <source>   Sensor Test     </source>
        <translation>   Prueba de sensores     </translation>
    </message>
    <message>
        <source>   Sensor</source>
        <translation>   Sensor</translation>
    </message>
    <message>
        <source>   Height Sensor CD</source>
        <translation>   Sensor de altura CD</translation>
    </message>
    <message>
        <source>   Lamp Test       </source>
        <translation>   Prueba de lámpara       </translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Max Speed (mph)</source>
        <translation>Velocidad máx. (mph)</translation>
    </message>
    <message>
        <source>Pressure Test   : </source>
        <translation>Prueba de presión   : </translation>
    </message>
    <message>
        <source>Redundancy Test   : </source>
        <translation>Prueba redundancia : </translation>
    </message>
    <message>
        <source>Sensor Test   : </source>
        <translation>Prueba de sensores : </translation>
    </message>
    <message>
        <source>Height Sensor CD : </source>
        <translation>Sensor de altura CD : </translation>
    </message>
    <message>
        <source>Lamp Test : </source>
        <translation>Prueba de lámpara : </translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Successfully sent the fault and test information to the printer.</source>
        <translation>La información de fallos y de pruebas se ha enviado a la impresora.</translation>
    </message>
    <message>
        <source>An error occurred while saving</source>
        <translation>Se ha producido un error al guardar</translation>
    </message>
    <message>
        <source>An error occurred printing the faults</source>
        <translation>Se ha producido un error al imprimir los fallos</translation>
    </message>
    <message>
        <source>ODR View</source>
        <translation>Vista ODR</translation>
    </message>
    <message>
        <source>Operating Data Recorder Overview</source>
        <translation>Resumen del registrador de datos de funcionamiento</translation>
    </message>
    <message>
        <source>Total Number of ABS Activations</source>
        <translation>Número total de activaciones del ABS</translation>
    </message>
    <message>
        <source>Total Number of Stoplight Power Activations</source>
        <translation>Número total de alimentaciones por las luces de freno</translation>
    </message>
    <message>
        <source>Total Number of Level 1 OVG Applications for All ODR Data</source>
        <translation>Número total de intervenciones OVG de nivel 1 en todos los datos ODR</translation>
    </message>
    <message>
        <source>Total Number of Level 2 OVG Applications for All ODR Data</source>
        <translation>Número total de intervenciones OVG de nivel 2 en todos los datos ODR</translation>
    </message>
    <message>
        <source>Norvick Brake Systems</source>
        <translation>Norvick Brake Systems</translation>
    </message>
    <message>
        <source>Vehicle ID:</source>
        <translation>ID del vehículo:</translation>
    </message>
    <message>
        <source>Data Extracted:</source>
        <translation>Extracción:</translation>
    </message>
    <message>
        <source> Total number of ABS activations</source>
        <translation> Número total de activaciones del ABS</translation>
    </message>
    <message>
        <source> Total number of Stoplight Power activations</source>
        <translation> Número total de alimentaciones por las luces de freno</translation>
    </message>
    <message>
        <source> Total number of Level One OVG applications for all ODR data</source>
        <translation> Número total de intervenciones OVG de nivel uno en todos los datos ODR</translation>
    </message>
    <message>
        <source> Total number of Level Two OVG applications for all ODR data</source>
        <translation> Número total de intervenciones OVG de nivel dos en todos los datos ODR</translation>
    </message>
    <message>
        <source>Print OK</source>
        <translation>Impresión terminada</translation>
    </message>
    <message>
        <source>ODR Data successfully sent to printer.</source>
        <translation>Los datos ODR se han enviado a la impresora.</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Error al guardar</translation>
    </message>
    <message>
        <source>An error occurred while saving:  </source>
        <translation>Se ha producido un error al guardar:  </translation>
    </message>
    <message>
        <source>Printer Error</source>
        <translation>Error de impresión</translation>
    </message>
    <message>
        <source>An error occurred printing the ODR data:  </source>
        <translation>Se ha producido un error al imprimir los datos ODR:  </translation>
    </message>
    <message>
        <source>Save EEPROM Data</source>
        <translation>Guardar datos de la EEPROM</translation>
    </message>
    <message>
        <source>Save ODR Data</source>
        <translation>Guardar datos ODR</translation>
    </message>
    <message>
        <source>Saving EEPROM Data...</source>
        <translation>Guardando los datos de la EEPROM...</translation>
    </message>
    <message>
        <source>Save Failed.  Please Try Again.</source>
        <translation>No se ha podido guardar. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>EEPROM data not saved.  Please try again.</source>
        <translation>Datos de la EEPROM no guardados. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Bytes Remaining To Transfer : </source>
        <translation>Bytes pendientes de transferir: </translation>
    </message>
    <message>
        <source>EEPROM Data saved in </source>
        <translation>Datos de la EEPROM guardados en </translation>
    </message>
    <message>
        <source>Exporting ODR Data...</source>
        <translation>Exportando los datos ODR...</translation>
    </message>
    <message>
        <source>ODR data not saved.  Please try again.</source>
        <translation>Datos ODR no guardados. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>ODR Data saved in </source>
        <translation>Datos ODR guardados en </translation>
    </message>
    <message>
        <source>Cannot save.</source>
        <translation>No se puede guardar.</translation>
    </message>
    <message>
        <source>The ECU information has not been successfully read.</source>
        <translation>No se ha podido leer la información de la ECU.</translation>
    </message>
    <message>
        <source>Select Data To Delete</source>
        <translation>Seleccionar los datos que borrar</translation>
    </message>
    <message>
        <source>Overview, histogram and trip accumulator</source>
        <translation>Resumen, histograma y acumulador parcial</translation>
    </message>
    <message>
        <source>ABS Accumulator</source>
        <translation>Acumulador ABS</translation>
    </message>
    <message>
        <source>OVG Accumulator</source>
        <translation>Acumulador OVG</translation>
    </message>
    <message>
        <source>Bus Monitor</source>
        <translation>Monitor de bus</translation>
    </message>
    <message>
        <source>Bus Monitor:</source>
        <translation>Monitor de bus:</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>St&amp;art Record</source>
        <translation>&amp;Iniciar el registro</translation>
    </message>
    <message>
        <source>St&amp;op Record</source>
        <translation>&amp;Detener el registro</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausa</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Data Log</source>
        <translation>Registro de datos</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Data Log File Information</source>
        <translation>Archivo del registro de datos</translation>
    </message>
    <message>
        <source>Comments to be stored at the beginning of the file:</source>
        <translation>Comentarios que se guardan al principio del archivo:</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Guardar c&amp;omo...</translation>
    </message>
    <message>
        <source>Display Options</source>
        <translation>Opciones de visualización</translation>
    </message>
    <message>
        <source>Idle Time</source>
        <translation>Tiempo de inactividad</translation>
    </message>
    <message>
        <source>Time Stamp</source>
        <translation>Marca de tiempo</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>ECU (*.ecu)|*.ecu</source>
        <translation>ECU (*.ecu)|*.ecu</translation>
    </message>
    <message>
        <source>ECU (*.ecu)|*.ecu|Text (*.txt)|*.txt|All Files (*.*)|*.*</source>
        <translation>ECU (*.ecu)|*.ecu|Texto (*.txt)|*.txt|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Text (*.txt)|*.txt|All Files (*.*)|*.*</source>
        <translation>Texto (*.txt)|*.txt|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>There is no printer here.  The pages are in </source>
        <translation>Aquí no hay impresora. Las páginas están en </translation>
    </message>
    <message>
        <source>Modulator H1</source>
        <translation>Modulador H1</translation>
    </message>
    <message>
        <source>Modulator H2</source>
        <translation>Modulador H2</translation>
    </message>
    <message>
        <source>Trailer Plan</source>
        <translation>Plano del remolque</translation>
    </message>
    <message>
        <source>Plan of the trailer</source>
        <translation>Plano del remolque</translation>
    </message>
    <message>
        <source>Live values</source>
        <translation>Valores en vivo</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Paso %1 de %2</translation>
    </message>
    <message>
        <source>Clearing the faults. The ECU restarts, which takes some seconds.</source>
        <translation>Borrando los fallos. La ECU se reinicia, lo que tarda unos segundos.</translation>
    </message>
    <message>
        <source>Front left wheel</source>
        <translation>Rueda delantera izquierda</translation>
    </message>
    <message>
        <source>Middle left wheel</source>
        <translation>Rueda central izquierda</translation>
    </message>
    <message>
        <source>Rear left wheel</source>
        <translation>Rueda trasera izquierda</translation>
    </message>
    <message>
        <source>Front right wheel</source>
        <translation>Rueda delantera derecha</translation>
    </message>
    <message>
        <source>Middle right wheel</source>
        <translation>Rueda central derecha</translation>
    </message>
    <message>
        <source>Rear right wheel</source>
        <translation>Rueda trasera derecha</translation>
    </message>
    <message>
        <source>Mounting of the ECU</source>
        <translation>Montaje de la ECU</translation>
    </message>
    <message>
        <source>Braking pressure (psi)</source>
        <translation>Presión de frenado (psi)</translation>
    </message>
    <message>
        <source>Front left tire</source>
        <translation>Neumático delantero izquierdo</translation>
    </message>
    <message>
        <source>Middle left tire</source>
        <translation>Neumático central izquierdo</translation>
    </message>
    <message>
        <source>Rear left tire</source>
        <translation>Neumático trasero izquierdo</translation>
    </message>
    <message>
        <source>Front right tire</source>
        <translation>Neumático delantero derecho</translation>
    </message>
    <message>
        <source>Middle right tire</source>
        <translation>Neumático central derecho</translation>
    </message>
    <message>
        <source>Rear right tire</source>
        <translation>Neumático trasero derecho</translation>
    </message>
    <message>
        <source>Reading the faults from the ECU...</source>
        <translation>Leyendo los fallos de la ECU...</translation>
    </message>
    <message>
        <source>Saving the data...</source>
        <translation>Guardando los datos...</translation>
    </message>
    <message>
        <source>Setting the flag takes about ten seconds.  The ECU restarts.</source>
        <translation>Establecer el indicador dura unos diez segundos. La ECU se reinicia.</translation>
    </message>
</context>
</TS>
