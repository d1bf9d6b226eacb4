<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>bench</name>
    <message>
        <source>Norvick Lorimet - Trailer Bench</source>
        <translation>Norvick Lorimet - Banco de remolque</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Start the program</source>
        <translation>Iniciar el programa</translation>
    </message>
    <message>
        <source>The trailer from above</source>
        <translation>El remolque visto desde arriba</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Delante</translation>
    </message>
    <message>
        <source>Reservoir</source>
        <translation>Depósito de aire</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Alimentación</translation>
    </message>
    <message>
        <source>Control line</source>
        <translation>Línea de mando</translation>
    </message>
    <message>
        <source>Bellows</source>
        <translation>Fuelle</translation>
    </message>
    <message>
        <source>Height sensor</source>
        <translation>Sensor de altura</translation>
    </message>
    <message>
        <source>Stop lights</source>
        <translation>Luces de freno</translation>
    </message>
    <message>
        <source>Stop lights on</source>
        <translation>Luces de freno encendidas</translation>
    </message>
    <message>
        <source>Stop lights off</source>
        <translation>Luces de freno apagadas</translation>
    </message>
    <message>
        <source>Warning lamp on</source>
        <translation>Lámpara de aviso encendida</translation>
    </message>
    <message>
        <source>Warning lamp off</source>
        <translation>Lámpara de aviso apagada</translation>
    </message>
    <message>
        <source>Wheel %1</source>
        <translation>Rueda %1</translation>
    </message>
    <message>
        <source>sensor %1</source>
        <translation>sensor %1</translation>
    </message>
    <message>
        <source>no sensor</source>
        <translation>sin sensor</translation>
    </message>
    <message>
        <source>can be turned</source>
        <translation>puede girar</translation>
    </message>
    <message>
        <source>held by the brake</source>
        <translation>retenida por el freno</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Remolque</translation>
    </message>
    <message>
        <source>Choose a trailer</source>
        <translation>Elegir un remolque</translation>
    </message>
    <message>
        <source>&amp;Trailer:</source>
        <translation>Remol&amp;que:</translation>
    </message>
    <message>
        <source>Load:</source>
        <translation>Carga:</translation>
    </message>
    <message>
        <source>&amp;Unladen</source>
        <translation>En &amp;vacío</translation>
    </message>
    <message>
        <source>&amp;Laden</source>
        <translation>En &amp;carga</translation>
    </message>
    <message>
        <source>Air and pedal</source>
        <translation>Aire y pedal</translation>
    </message>
    <message>
        <source>Reservoir:</source>
        <translation>Depósito:</translation>
    </message>
    <message>
        <source>&amp;Pump</source>
        <translation>Bombea&amp;r</translation>
    </message>
    <message>
        <source>&amp;Bleed</source>
        <translation>Pur&amp;gar</translation>
    </message>
    <message>
        <source>&amp;Compressor</source>
        <translation>Com&amp;presor</translation>
    </message>
    <message>
        <source>P&amp;edal:</source>
        <translation>P&amp;edal:</translation>
    </message>
    <message>
        <source>Pedal, psi</source>
        <translation>Pedal, psi</translation>
    </message>
    <message>
        <source>Press &amp;90</source>
        <translation>Pisar a &amp;90</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Liberar</translation>
    </message>
    <message>
        <source>Wheels and lever</source>
        <translation>Ruedas y palanca</translation>
    </message>
    <message>
        <source>&amp;Hand:</source>
        <translation>&amp;Mano:</translation>
    </message>
    <message>
        <source>Click a wheel, or press 1 to 6.</source>
        <translation>Haga clic en una rueda o pulse 1 a 6.</translation>
    </message>
    <message>
        <source>Par&amp;king brake</source>
        <translation>&amp;Freno de estacionamiento</translation>
    </message>
    <message>
        <source>Le&amp;ver:</source>
        <translation>Pal&amp;anca:</translation>
    </message>
    <message>
        <source>Height lever, degrees</source>
        <translation>Palanca de altura, grados</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Switches and plugs</source>
        <translation>Interruptores y conectores</translation>
    </message>
    <message>
        <source>P&amp;ower</source>
        <translation>Alimentación eléctr&amp;ica</translation>
    </message>
    <message>
        <source>C&amp;able</source>
        <translation>Ca&amp;ble</translation>
    </message>
    <message>
        <source>A&amp;dapter</source>
        <translation>Adap&amp;tador</translation>
    </message>
    <message>
        <source>What goes wrong</source>
        <translation>Lo que va mal</translation>
    </message>
    <message>
        <source>Defect of the trailer</source>
        <translation>Defecto del remolque</translation>
    </message>
    <message>
        <source>De&amp;fect:</source>
        <translation>&amp;Defecto:</translation>
    </message>
    <message>
        <source>Failure of the link</source>
        <translation>Avería del enlace</translation>
    </message>
    <message>
        <source>L&amp;ink:</source>
        <translation>E&amp;nlace:</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Romper</translation>
    </message>
    <message>
        <source>Mend all</source>
        <translation>Reparar todo</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Provocar</translation>
    </message>
    <message>
        <source>Heal all</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Cause gone</source>
        <translation>Sin causa</translation>
    </message>
    <message>
        <source>Defects: %1</source>
        <translation>Defectos: %1</translation>
    </message>
    <message>
        <source>Link failures: %1</source>
        <translation>Fallos del enlace: %1</translation>
    </message>
    <message>
        <source>Faults in the ECU: %1</source>
        <translation>Fallos en la ECU: %1</translation>
    </message>
    <message>
        <source>What the ECU was told last</source>
        <translation>Últimas órdenes recibidas por la ECU</translation>
    </message>
    <message>
        <source>Every other command</source>
        <translation>Todas las demás órdenes</translation>
    </message>
    <message>
        <source>Co&amp;mmand:</source>
        <translation>&amp;Orden:</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Respuestas</translation>
    </message>
    <message>
        <source>Such as: drive 30</source>
        <translation>Por ejemplo: drive 30</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>Semi-trailer, 4S/2M</source>
        <translation>Semirremolque, 4S/2M</translation>
    </message>
    <message>
        <source>Two axles, 2S/2M</source>
        <translation>Dos ejes, 2S/2M</translation>
    </message>
    <message>
        <source>One axle, 2S/1M</source>
        <translation>Un eje, 2S/1M</translation>
    </message>
    <message>
        <source>Three modulators, 4S/3M</source>
        <translation>Tres moduladores, 4S/3M</translation>
    </message>
    <message>
        <source>Draw-bar trailer, 2M+1M</source>
        <translation>Remolque con lanza, 2M+1M</translation>
    </message>
    <message>
        <source>Mechanical suspension, rear mounting</source>
        <translation>Suspensión mecánica, montaje hacia atrás</translation>
    </message>
    <message>
        <source>Weak modulator</source>
        <translation>Modulador débil</translation>
    </message>
    <message>
        <source>Leaking reservoir</source>
        <translation>Depósito con fugas</translation>
    </message>
    <message>
        <source>Redundancy path blocked</source>
        <translation>Vía de redundancia obstruida</translation>
    </message>
    <message>
        <source>Crossed brake lines</source>
        <translation>Conductos de freno mal conectados</translation>
    </message>
    <message>
        <source>Exchanged sensor cables</source>
        <translation>Cables de sensores intercambiados</translation>
    </message>
    <message>
        <source>Dead warning lamp</source>
        <translation>Lámpara de aviso averiada</translation>
    </message>
    <message>
        <source>Height sensor out of range</source>
        <translation>Sensor de altura fuera de rango</translation>
    </message>
    <message>
        <source>Calibration refused</source>
        <translation>Calibración rechazada</translation>
    </message>
    <message>
        <source>End-of-line flag refused</source>
        <translation>Bit de fin de línea rechazado</translation>
    </message>
    <message>
        <source>Neglected, with faults</source>
        <translation>Descuidado, con fallos</translation>
    </message>
    <message>
        <source>Wrong parameters</source>
        <translation>Parámetros incorrectos</translation>
    </message>
    <message>
        <source>Link and ECU answer badly</source>
        <translation>El enlace y la ECU responden mal</translation>
    </message>
    <message>
        <source>The ECU tells nothing</source>
        <translation>La ECU no dice nada</translation>
    </message>
    <message>
        <source>No adapter</source>
        <translation>Sin adaptador</translation>
    </message>
    <message>
        <source>Modulator H1 dead</source>
        <translation>Modulador H1 sin función</translation>
    </message>
    <message>
        <source>Modulator H2 weak</source>
        <translation>Modulador H2 débil</translation>
    </message>
    <message>
        <source>Reservoir leaks</source>
        <translation>Depósito de aire con fugas</translation>
    </message>
    <message>
        <source>Control line leaks</source>
        <translation>Línea de mando con fugas</translation>
    </message>
    <message>
        <source>Residual control pressure</source>
        <translation>Presión de mando residual</translation>
    </message>
    <message>
        <source>Supply and control hoses exchanged</source>
        <translation>Conductos de alimentación y de mando intercambiados</translation>
    </message>
    <message>
        <source>Bellows burst</source>
        <translation>Fuelle reventado</translation>
    </message>
    <message>
        <source>Redundancy path of H2 blocked</source>
        <translation>Vía de redundancia de H2 obstruida</translation>
    </message>
    <message>
        <source>Brake lines crossed</source>
        <translation>Conductos de freno cruzados</translation>
    </message>
    <message>
        <source>Sensor cables c and d exchanged</source>
        <translation>Cables de los sensores c y d intercambiados</translation>
    </message>
    <message>
        <source>Sensor c without signal</source>
        <translation>Sensor c sin señal</translation>
    </message>
    <message>
        <source>Sensor d with too wide a gap</source>
        <translation>Entrehierro del sensor d demasiado grande</translation>
    </message>
    <message>
        <source>Pressure sensor H1 reads too high</source>
        <translation>Sensor de presión H1: valor demasiado alto</translation>
    </message>
    <message>
        <source>Warning lamp dead</source>
        <translation>Lámpara de aviso fundida</translation>
    </message>
    <message>
        <source>Height sensor unplugged</source>
        <translation>Sensor de altura desconectado</translation>
    </message>
    <message>
        <source>Stop lights dead</source>
        <translation>Luces de freno fundidas</translation>
    </message>
    <message>
        <source>ECU refuses the session</source>
        <translation>La ECU rechaza la sesión</translation>
    </message>
    <message>
        <source>ECU refuses the brake modes</source>
        <translation>La ECU rechaza los modos de frenado</translation>
    </message>
    <message>
        <source>ECU refuses the lamp test</source>
        <translation>La ECU rechaza la prueba de la lámpara</translation>
    </message>
    <message>
        <source>End-of-line flag cannot be written</source>
        <translation>No se puede escribir el bit de fin de línea</translation>
    </message>
    <message>
        <source>Faults cannot be cleared</source>
        <translation>No se pueden borrar los fallos</translation>
    </message>
    <message>
        <source>ECU does not restart</source>
        <translation>La ECU no se reinicia</translation>
    </message>
    <message>
        <source>Messages are lost</source>
        <translation>Se pierden mensajes</translation>
    </message>
    <message>
        <source>Identity is never read</source>
        <translation>La identidad no se lee nunca</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conexión establecida</translation>
    </message>
    <message>
        <source>Identity read</source>
        <translation>Identidad leída</translation>
    </message>
    <message>
        <source>Session opened</source>
        <translation>Sesión abierta</translation>
    </message>
    <message>
        <source>Password sent</source>
        <translation>Contraseña enviada</translation>
    </message>
    <message>
        <source>Work begun</source>
        <translation>Trabajo iniciado</translation>
    </message>
    <message>
        <source>Work ended</source>
        <translation>Trabajo terminado</translation>
    </message>
    <message>
        <source>Brakes normal</source>
        <translation>Frenos en modo normal</translation>
    </message>
    <message>
        <source>Brakes in redundancy</source>
        <translation>Frenos en redundancia</translation>
    </message>
    <message>
        <source>Brakes in test mode</source>
        <translation>Frenos en modo de prueba</translation>
    </message>
    <message>
        <source>Control pressure set</source>
        <translation>Presión de mando fijada</translation>
    </message>
    <message>
        <source>Pressure of H1 set</source>
        <translation>Presión de H1 fijada</translation>
    </message>
    <message>
        <source>Pressure of H2 set</source>
        <translation>Presión de H2 fijada</translation>
    </message>
    <message>
        <source>Load set</source>
        <translation>Carga fijada</translation>
    </message>
    <message>
        <source>Warning lamp switched on</source>
        <translation>Lámpara de aviso encendida por orden</translation>
    </message>
    <message>
        <source>Warning lamp switched off</source>
        <translation>Lámpara de aviso apagada por orden</translation>
    </message>
    <message>
        <source>Height sensor calibrated</source>
        <translation>Sensor de altura calibrado</translation>
    </message>
    <message>
        <source>Valves released</source>
        <translation>Válvulas liberadas</translation>
    </message>
    <message>
        <source>Changes stored</source>
        <translation>Cambios memorizados</translation>
    </message>
    <message>
        <source>Block read</source>
        <translation>Bloque leído</translation>
    </message>
    <message>
        <source>Block written</source>
        <translation>Bloque escrito</translation>
    </message>
    <message>
        <source>End-of-line flag written</source>
        <translation>Bit de fin de línea escrito</translation>
    </message>
    <message>
        <source>Height sensor read</source>
        <translation>Sensor de altura leído</translation>
    </message>
    <message>
        <source>Faults cleared</source>
        <translation>Fallos borrados</translation>
    </message>
    <message>
        <source>Faults read</source>
        <translation>Fallos leídos</translation>
    </message>
    <message>
        <source>ECU restarted</source>
        <translation>ECU reiniciada</translation>
    </message>
    <message>
        <source>Stop lights switched</source>
        <translation>Luces de freno mandadas</translation>
    </message>
    <message>
        <source>There is no simulated trailer.</source>
        <translation>No hay ningún remolque simulado.</translation>
    </message>
    <message>
        <source>Start the program; the bench finds its trailer by itself.</source>
        <translation>Inicie el programa; el banco encuentra su remolque por sí solo.</translation>
    </message>
    <message>
        <source>Somebody else has this trailer.</source>
        <translation>Otra persona tiene este remolque.</translation>
    </message>
    <message>
        <source>Close the other bench; this one takes over by itself.</source>
        <translation>Cierre el otro banco; este toma el relevo por sí solo.</translation>
    </message>
    <message>
        <source>The adapter is switched off.</source>
        <translation>El adaptador está apagado.</translation>
    </message>
    <message>
        <source>Switch it on.</source>
        <translation>Enciéndalo.</translation>
    </message>
    <message>
        <source>No program is connected to the trailer.</source>
        <translation>Ningún programa está conectado al remolque.</translation>
    </message>
    <message>
        <source>Choose Restart ECU Communications there.</source>
        <translation>Elija allí Reiniciar la comunicación con la ECU.</translation>
    </message>
    <message>
        <source>The diagnostic cable is pulled.</source>
        <translation>El cable de diagnóstico está desconectado.</translation>
    </message>
    <message>
        <source>Plug it in.</source>
        <translation>Conéctelo.</translation>
    </message>
    <message>
        <source>The ECU has no power.</source>
        <translation>La ECU no tiene alimentación eléctrica.</translation>
    </message>
    <message>
        <source>Switch the power on.</source>
        <translation>Restablezca la alimentación eléctrica.</translation>
    </message>
    <message>
        <source>The program is connected and waits for you.</source>
        <translation>El programa está conectado y le espera.</translation>
    </message>
    <message>
        <source>Release the pedal before you sign the trailer off.</source>
        <translation>Libere el pedal antes de aprobar el remolque.</translation>
    </message>
    <message>
        <source>Fill the reservoir before you sign the trailer off.</source>
        <translation>Llene el depósito de aire antes de aprobar el remolque.</translation>
    </message>
    <message>
        <source>Unload the trailer before you sign it off.</source>
        <translation>Descargue el remolque antes de aprobarlo.</translation>
    </message>
    <message>
        <source>Choose Sign-off, Begin Sign-off Procedure there.</source>
        <translation>Elija allí Aprobación, Iniciar el procedimiento de aprobación.</translation>
    </message>
    <message>
        <source>The program has prepared the ECU for its work.</source>
        <translation>El programa ha preparado la ECU para su trabajo.</translation>
    </message>
    <message>
        <source>Read its screen and go on there.</source>
        <translation>Lea su pantalla y siga allí.</translation>
    </message>
    <message>
        <source>The program waits until there is no control pressure (below 2.9 psi).</source>
        <translation>El programa espera a que no haya presión de mando (menos de 2.9 psi).</translation>
    </message>
    <message>
        <source>Release the pedal.</source>
        <translation>Libere el pedal.</translation>
    </message>
    <message>
        <source>The program waits for supply pressure above 72.5 psi.</source>
        <translation>El programa espera una presión de alimentación de más de 72.5 psi.</translation>
    </message>
    <message>
        <source>Fill the reservoir.</source>
        <translation>Llene el depósito de aire.</translation>
    </message>
    <message>
        <source>The program waits for bellows pressure above 2.17 psi.</source>
        <translation>El programa espera una presión de fuelle de más de 2.17 psi.</translation>
    </message>
    <message>
        <source>The bellows have no air: mend the defect.</source>
        <translation>Los fuelles no tienen aire: repare el defecto.</translation>
    </message>
    <message>
        <source>The program waits for you, or for control pressure above 80 psi.</source>
        <translation>El programa le espera, o una presión de mando de más de 80 psi.</translation>
    </message>
    <message>
        <source>Read its screen; in the redundancy test press the pedal to 90 psi.</source>
        <translation>Lea su pantalla; en la prueba de redundancia pise el pedal a 90 psi.</translation>
    </message>
    <message>
        <source>The program takes over the brakes.</source>
        <translation>El programa toma el mando de los frenos.</translation>
    </message>
    <message>
        <source>Wait.</source>
        <translation>Espere.</translation>
    </message>
    <message>
        <source>The program tests the brake pressures.</source>
        <translation>El programa prueba las presiones de frenado.</translation>
    </message>
    <message>
        <source>Leave the pedal alone and wait.</source>
        <translation>No toque el pedal y espere.</translation>
    </message>
    <message>
        <source>The brake pressures are tested.</source>
        <translation>Las presiones de frenado están probadas.</translation>
    </message>
    <message>
        <source>The brake pressures are tested; the redundancy test wants supply above 80 psi.</source>
        <translation>Las presiones de frenado están probadas; la prueba de redundancia pide una alimentación de más de 80 psi.</translation>
    </message>
    <message>
        <source>The brake pressures are tested; the redundancy test wants control pressure above 80 psi.</source>
        <translation>Las presiones de frenado están probadas; la prueba de redundancia pide una presión de mando de más de 80 psi.</translation>
    </message>
    <message>
        <source>Press the pedal to 90 psi and hold it.</source>
        <translation>Pise el pedal a 90 psi y manténgalo.</translation>
    </message>
    <message>
        <source>The redundancy test waits for supply pressure above 79.75 psi.</source>
        <translation>La prueba de redundancia espera una presión de alimentación de más de 79.75 psi.</translation>
    </message>
    <message>
        <source>The redundancy test waits for control pressure above 75.4 psi.</source>
        <translation>La prueba de redundancia espera una presión de mando de más de 75.4 psi.</translation>
    </message>
    <message>
        <source>The program compares the brake pressures with the pedal&apos;s.</source>
        <translation>El programa compara las presiones de frenado con la del pedal.</translation>
    </message>
    <message>
        <source>Keep the pedal pressed until its screen has closed.</source>
        <translation>Mantenga pisado el pedal hasta que se cierre su pantalla.</translation>
    </message>
    <message>
        <source>The redundancy test has ended.</source>
        <translation>La prueba de redundancia ha terminado.</translation>
    </message>
    <message>
        <source>Release the pedal, then read the program&apos;s message.</source>
        <translation>Libere el pedal y lea el mensaje del programa.</translation>
    </message>
    <message>
        <source>The sensor test wants supply pressure above 72.5 psi.</source>
        <translation>La prueba de los sensores pide una presión de alimentación de más de 72.5 psi.</translation>
    </message>
    <message>
        <source>Read the program&apos;s message and press OK.</source>
        <translation>Lea el mensaje del programa y pulse OK.</translation>
    </message>
    <message>
        <source>The sensor test waits for a wheel, and the parking brake holds them all.</source>
        <translation>La prueba de los sensores espera una rueda, y el freno de estacionamiento las retiene todas.</translation>
    </message>
    <message>
        <source>Release the parking brake.</source>
        <translation>Libere el freno de estacionamiento.</translation>
    </message>
    <message>
        <source>The program brakes and frees the wheels.</source>
        <translation>El programa frena y libera las ruedas.</translation>
    </message>
    <message>
        <source>Wait until a letter is yellow there.</source>
        <translation>Espere a que allí haya una letra amarilla.</translation>
    </message>
    <message>
        <source>The wheel turns.</source>
        <translation>La rueda gira.</translation>
    </message>
    <message>
        <source>Watch the program&apos;s screen.</source>
        <translation>Observe la pantalla del programa.</translation>
    </message>
    <message>
        <source>The program frees a wheel.</source>
        <translation>El programa libera una rueda.</translation>
    </message>
    <message>
        <source>Wait until it can be turned.</source>
        <translation>Espere a que pueda girar.</translation>
    </message>
    <message>
        <source>The sensor test waits for the wheel of the yellow letter.</source>
        <translation>La prueba de los sensores espera la rueda de la letra amarilla.</translation>
    </message>
    <message>
        <source>Spin wheel %1 (sensor %2): click it, or press %1.</source>
        <translation>Haga girar la rueda %1 (sensor %2): haga clic en ella o pulse %1.</translation>
    </message>
    <message>
        <source>The sensor test has ended.</source>
        <translation>La prueba de los sensores ha terminado.</translation>
    </message>
    <message>
        <source>The lamp test has ended.</source>
        <translation>La prueba de la lámpara ha terminado.</translation>
    </message>
    <message>
        <source>The program blinks the warning lamp and asks whether you see it.</source>
        <translation>El programa hace parpadear la lámpara de aviso y pregunta si la ve.</translation>
    </message>
    <message>
        <source>It blinks here: answer Yes.</source>
        <translation>Parpadea aquí: responda Sí.</translation>
    </message>
    <message>
        <source>It does not blink here: answer No.</source>
        <translation>No parpadea aquí: responda No.</translation>
    </message>
    <message>
        <source>Watch the lamp.</source>
        <translation>Observe la lámpara.</translation>
    </message>
    <message>
        <source>The calibration has ended.</source>
        <translation>La calibración ha terminado.</translation>
    </message>
    <message>
        <source>The program waits for the height sensor&apos;s calibration.</source>
        <translation>El programa espera la calibración del sensor de altura.</translation>
    </message>
    <message>
        <source>The sensor tells nothing: plug it in.</source>
        <translation>El sensor no dice nada: conéctelo.</translation>
    </message>
    <message>
        <source>Unload the trailer.</source>
        <translation>Descargue el remolque.</translation>
    </message>
    <message>
        <source>Bring the lever to the horizontal.</source>
        <translation>Ponga la palanca en horizontal.</translation>
    </message>
    <message>
        <source>Press Calibrate height sensor c-d there.</source>
        <translation>Pulse allí Calibrar el sensor de altura c-d.</translation>
    </message>
    <message>
        <source>The height sensor&apos;s calibration was commanded.</source>
        <translation>Se ha mandado la calibración del sensor de altura.</translation>
    </message>
    <message>
        <source>The program writes the end-of-line flag and restarts the ECU.</source>
        <translation>El programa escribe el bit de fin de línea y reinicia la ECU.</translation>
    </message>
    <message>
        <source>Wait: this takes ten seconds.</source>
        <translation>Espere: tarda diez segundos.</translation>
    </message>
    <message>
        <source>The trailer is signed off.</source>
        <translation>El remolque está aprobado.</translation>
    </message>
    <message>
        <source>Save and print its report in the program.</source>
        <translation>Guarde e imprima su informe en el programa.</translation>
    </message>
    <message>
        <source>Choose another trailer, or try what you like.</source>
        <translation>Elija otro remolque o pruebe lo que quiera.</translation>
    </message>
    <message>
        <source>The end-of-line flag says that the trailer has not passed.</source>
        <translation>El bit de fin de línea indica que el remolque no ha superado las pruebas.</translation>
    </message>
    <message>
        <source>The program has read the parameters.</source>
        <translation>El programa ha leído los parámetros.</translation>
    </message>
    <message>
        <source>The program writes the parameters.</source>
        <translation>El programa escribe los parámetros.</translation>
    </message>
    <message>
        <source>The program switches the stop lights.</source>
        <translation>El programa manda las luces de freno.</translation>
    </message>
    <message>
        <source>Watch them here.</source>
        <translation>Obsérvelas aquí.</translation>
    </message>
    <message>
        <source>The program works with the recorder&apos;s data.</source>
        <translation>El programa trabaja con los datos del registrador.</translation>
    </message>
    <message>
        <source>Control pressure sensor</source>
        <translation>Sensor de presión de mando</translation>
    </message>
    <message>
        <source>Supply pressure sensor</source>
        <translation>Sensor de presión de alimentación</translation>
    </message>
    <message>
        <source>Bellows pressure sensor</source>
        <translation>Sensor de presión del fuelle</translation>
    </message>
    <message>
        <source>Modulator</source>
        <translation>Modulador</translation>
    </message>
    <message>
        <source>Brake pressure sensor</source>
        <translation>Sensor de presión de frenado</translation>
    </message>
    <message>
        <source>Redundancy path</source>
        <translation>Vía de redundancia</translation>
    </message>
    <message>
        <source>Sensor cables exchanged</source>
        <translation>Cables de sensores intercambiados</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Sensor de rueda</translation>
    </message>
    <message>
        <source>Wheel without brake</source>
        <translation>Rueda sin freno</translation>
    </message>
    <message>
        <source>Brake mode ignored</source>
        <translation>Modo de frenado ignorado</translation>
    </message>
    <message>
        <source>Load ignored</source>
        <translation>Carga ignorada</translation>
    </message>
</context>
</TS>
