<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>bench</name>
    <message>
        <source>Norvick Lorimet - Trailer Bench</source>
        <translation>Norvick Lorimet - Banc de remorque</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Start the program</source>
        <translation>Lancer le programme</translation>
    </message>
    <message>
        <source>The trailer from above</source>
        <translation>La remorque vue de dessus</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Reservoir</source>
        <translation>Réservoir d&apos;air</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Control line</source>
        <translation>Conduite de commande</translation>
    </message>
    <message>
        <source>Bellows</source>
        <translation>Soufflet</translation>
    </message>
    <message>
        <source>Height sensor</source>
        <translation>Capteur de hauteur</translation>
    </message>
    <message>
        <source>Stop lights</source>
        <translation>Feux stop</translation>
    </message>
    <message>
        <source>Stop lights on</source>
        <translation>Feux stop allumés</translation>
    </message>
    <message>
        <source>Stop lights off</source>
        <translation>Feux stop éteints</translation>
    </message>
    <message>
        <source>Warning lamp on</source>
        <translation>Voyant d&apos;alerte allumé</translation>
    </message>
    <message>
        <source>Warning lamp off</source>
        <translation>Voyant d&apos;alerte éteint</translation>
    </message>
    <message>
        <source>Wheel %1</source>
        <translation>Roue %1</translation>
    </message>
    <message>
        <source>sensor %1</source>
        <translation>capteur %1</translation>
    </message>
    <message>
        <source>no sensor</source>
        <translation>sans capteur</translation>
    </message>
    <message>
        <source>can be turned</source>
        <translation>peut tourner</translation>
    </message>
    <message>
        <source>held by the brake</source>
        <translation>retenue par le frein</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Remorque</translation>
    </message>
    <message>
        <source>Choose a trailer</source>
        <translation>Choisir une remorque</translation>
    </message>
    <message>
        <source>&amp;Trailer:</source>
        <translation>&amp;Remorque :</translation>
    </message>
    <message>
        <source>Load:</source>
        <translation>Charge :</translation>
    </message>
    <message>
        <source>&amp;Unladen</source>
        <translation>À &amp;vide</translation>
    </message>
    <message>
        <source>&amp;Laden</source>
        <translation>En &amp;charge</translation>
    </message>
    <message>
        <source>Air and pedal</source>
        <translation>Air et pédale</translation>
    </message>
    <message>
        <source>Reservoir:</source>
        <translation>Réservoir :</translation>
    </message>
    <message>
        <source>&amp;Pump</source>
        <translation>&amp;Pomper</translation>
    </message>
    <message>
        <source>&amp;Bleed</source>
        <translation>Pur&amp;ger</translation>
    </message>
    <message>
        <source>&amp;Compressor</source>
        <translation>C&amp;ompresseur</translation>
    </message>
    <message>
        <source>P&amp;edal:</source>
        <translation>P&amp;édale :</translation>
    </message>
    <message>
        <source>Pedal, psi</source>
        <translation>Pédale, psi</translation>
    </message>
    <message>
        <source>Press &amp;90</source>
        <translation>Appuyer à &amp;90</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Lever le pied</translation>
    </message>
    <message>
        <source>Wheels and lever</source>
        <translation>Roues et levier</translation>
    </message>
    <message>
        <source>&amp;Hand:</source>
        <translation>&amp;Main :</translation>
    </message>
    <message>
        <source>Click a wheel, or press 1 to 6.</source>
        <translation>Cliquez sur une roue ou appuyez sur 1 à 6.</translation>
    </message>
    <message>
        <source>Par&amp;king brake</source>
        <translation>&amp;Frein de stationnement</translation>
    </message>
    <message>
        <source>Le&amp;ver:</source>
        <translation>Lev&amp;ier :</translation>
    </message>
    <message>
        <source>Height lever, degrees</source>
        <translation>Levier de hauteur, degrés</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Switches and plugs</source>
        <translation>Interrupteurs et prises</translation>
    </message>
    <message>
        <source>P&amp;ower</source>
        <translation>Alimentation électri&amp;que</translation>
    </message>
    <message>
        <source>C&amp;able</source>
        <translation>C&amp;âble</translation>
    </message>
    <message>
        <source>A&amp;dapter</source>
        <translation>In&amp;terface</translation>
    </message>
    <message>
        <source>What goes wrong</source>
        <translation>Ce qui va mal</translation>
    </message>
    <message>
        <source>Defect of the trailer</source>
        <translation>Défectuosité de la remorque</translation>
    </message>
    <message>
        <source>De&amp;fect:</source>
        <translation>Pann&amp;e :</translation>
    </message>
    <message>
        <source>Failure of the link</source>
        <translation>Défaillance de la liaison</translation>
    </message>
    <message>
        <source>L&amp;ink:</source>
        <translation>Liaiso&amp;n :</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Casser</translation>
    </message>
    <message>
        <source>Mend all</source>
        <translation>Tout réparer</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Provoquer</translation>
    </message>
    <message>
        <source>Heal all</source>
        <translation>Tout rétablir</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Signaler</translation>
    </message>
    <message>
        <source>Cause gone</source>
        <translation>Cause disparue</translation>
    </message>
    <message>
        <source>Defects: %1</source>
        <translation>Pannes : %1</translation>
    </message>
    <message>
        <source>Link failures: %1</source>
        <translation>Liaison perturbée : %1</translation>
    </message>
    <message>
        <source>Faults in the ECU: %1</source>
        <translation>Défauts dans l&apos;ECU : %1</translation>
    </message>
    <message>
        <source>What the ECU was told last</source>
        <translation>Derniers ordres reçus par l&apos;ECU</translation>
    </message>
    <message>
        <source>Every other command</source>
        <translation>Toutes les autres commandes</translation>
    </message>
    <message>
        <source>Co&amp;mmand:</source>
        <translation>Comm&amp;ande :</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Réponses</translation>
    </message>
    <message>
        <source>Such as: drive 30</source>
        <translation>Par exemple : drive 30</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fait</translation>
    </message>
    <message>
        <source>Semi-trailer, 4S/2M</source>
        <translation>Semi-remorque, 4S/2M</translation>
    </message>
    <message>
        <source>Two axles, 2S/2M</source>
        <translation>Deux essieux, 2S/2M</translation>
    </message>
    <message>
        <source>One axle, 2S/1M</source>
        <translation>Un essieu, 2S/1M</translation>
    </message>
    <message>
        <source>Three modulators, 4S/3M</source>
        <translation>Trois modulateurs, 4S/3M</translation>
    </message>
    <message>
        <source>Draw-bar trailer, 2M+1M</source>
        <translation>Remorque à timon, 2M+1M</translation>
    </message>
    <message>
        <source>Mechanical suspension, rear mounting</source>
        <translation>Suspension mécanique, montage vers l&apos;arrière</translation>
    </message>
    <message>
        <source>Weak modulator</source>
        <translation>Modulateur faible</translation>
    </message>
    <message>
        <source>Leaking reservoir</source>
        <translation>Réservoir d&apos;air avec fuite</translation>
    </message>
    <message>
        <source>Redundancy path blocked</source>
        <translation>Voie de redondance bouchée</translation>
    </message>
    <message>
        <source>Crossed brake lines</source>
        <translation>Conduites de frein mal raccordées</translation>
    </message>
    <message>
        <source>Exchanged sensor cables</source>
        <translation>Câbles de capteurs inversés</translation>
    </message>
    <message>
        <source>Dead warning lamp</source>
        <translation>Voyant d&apos;alerte grillé</translation>
    </message>
    <message>
        <source>Height sensor out of range</source>
        <translation>Capteur de hauteur hors limites</translation>
    </message>
    <message>
        <source>Calibration refused</source>
        <translation>Calibration refusée</translation>
    </message>
    <message>
        <source>End-of-line flag refused</source>
        <translation>Bit de fin de ligne refusé</translation>
    </message>
    <message>
        <source>Neglected, with faults</source>
        <translation>Mal entretenue, avec des défauts</translation>
    </message>
    <message>
        <source>Wrong parameters</source>
        <translation>Paramètres incorrects</translation>
    </message>
    <message>
        <source>Link and ECU answer badly</source>
        <translation>Liaison et ECU répondent mal</translation>
    </message>
    <message>
        <source>The ECU tells nothing</source>
        <translation>L&apos;ECU ne dit rien</translation>
    </message>
    <message>
        <source>No adapter</source>
        <translation>Pas d&apos;interface</translation>
    </message>
    <message>
        <source>Modulator H1 dead</source>
        <translation>Modulateur H1 hors service</translation>
    </message>
    <message>
        <source>Modulator H2 weak</source>
        <translation>Modulateur H2 faible</translation>
    </message>
    <message>
        <source>Reservoir leaks</source>
        <translation>Réservoir d&apos;air non étanche</translation>
    </message>
    <message>
        <source>Control line leaks</source>
        <translation>Conduite de commande non étanche</translation>
    </message>
    <message>
        <source>Residual control pressure</source>
        <translation>Pression de commande résiduelle</translation>
    </message>
    <message>
        <source>Supply and control hoses exchanged</source>
        <translation>Conduites d&apos;alimentation et de commande inversées</translation>
    </message>
    <message>
        <source>Bellows burst</source>
        <translation>Soufflet éclaté</translation>
    </message>
    <message>
        <source>Redundancy path of H2 blocked</source>
        <translation>Voie de redondance de H2 bouchée</translation>
    </message>
    <message>
        <source>Brake lines crossed</source>
        <translation>Conduites de frein croisées</translation>
    </message>
    <message>
        <source>Sensor cables c and d exchanged</source>
        <translation>Câbles des capteurs c et d inversés</translation>
    </message>
    <message>
        <source>Sensor c without signal</source>
        <translation>Capteur c sans signal</translation>
    </message>
    <message>
        <source>Sensor d with too wide a gap</source>
        <translation>Entrefer du capteur d trop grand</translation>
    </message>
    <message>
        <source>Pressure sensor H1 reads too high</source>
        <translation>Capteur de pression H1 : valeur trop élevée</translation>
    </message>
    <message>
        <source>Warning lamp dead</source>
        <translation>Voyant d&apos;alerte hors service</translation>
    </message>
    <message>
        <source>Height sensor unplugged</source>
        <translation>Capteur de hauteur débranché</translation>
    </message>
    <message>
        <source>Stop lights dead</source>
        <translation>Feux stop hors service</translation>
    </message>
    <message>
        <source>ECU refuses the session</source>
        <translation>L&apos;ECU refuse la session</translation>
    </message>
    <message>
        <source>ECU refuses the brake modes</source>
        <translation>L&apos;ECU refuse les modes de freinage</translation>
    </message>
    <message>
        <source>ECU refuses the lamp test</source>
        <translation>L&apos;ECU refuse le test du voyant</translation>
    </message>
    <message>
        <source>End-of-line flag cannot be written</source>
        <translation>Bit de fin de ligne impossible à écrire</translation>
    </message>
    <message>
        <source>Faults cannot be cleared</source>
        <translation>Défauts impossibles à effacer</translation>
    </message>
    <message>
        <source>ECU does not restart</source>
        <translation>L&apos;ECU ne redémarre pas</translation>
    </message>
    <message>
        <source>Messages are lost</source>
        <translation>Des messages se perdent</translation>
    </message>
    <message>
        <source>Identity is never read</source>
        <translation>L&apos;identité n&apos;est jamais lue</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connexion établie</translation>
    </message>
    <message>
        <source>Identity read</source>
        <translation>Identité lue</translation>
    </message>
    <message>
        <source>Session opened</source>
        <translation>Session ouverte</translation>
    </message>
    <message>
        <source>Password sent</source>
        <translation>Mot de passe envoyé</translation>
    </message>
    <message>
        <source>Work begun</source>
        <translation>Travail commencé</translation>
    </message>
    <message>
        <source>Work ended</source>
        <translation>Travail terminé</translation>
    </message>
    <message>
        <source>Brakes normal</source>
        <translation>Freins en mode normal</translation>
    </message>
    <message>
        <source>Brakes in redundancy</source>
        <translation>Freins en redondance</translation>
    </message>
    <message>
        <source>Brakes in test mode</source>
        <translation>Freins en mode de test</translation>
    </message>
    <message>
        <source>Control pressure set</source>
        <translation>Pression de commande imposée</translation>
    </message>
    <message>
        <source>Pressure of H1 set</source>
        <translation>Pression de H1 imposée</translation>
    </message>
    <message>
        <source>Pressure of H2 set</source>
        <translation>Pression de H2 imposée</translation>
    </message>
    <message>
        <source>Load set</source>
        <translation>Charge imposée</translation>
    </message>
    <message>
        <source>Warning lamp switched on</source>
        <translation>Voyant d&apos;alerte allumé par ordre</translation>
    </message>
    <message>
        <source>Warning lamp switched off</source>
        <translation>Voyant d&apos;alerte éteint par ordre</translation>
    </message>
    <message>
        <source>Height sensor calibrated</source>
        <translation>Capteur de hauteur calibré</translation>
    </message>
    <message>
        <source>Valves released</source>
        <translation>Valves libérées</translation>
    </message>
    <message>
        <source>Changes stored</source>
        <translation>Modifications mémorisées</translation>
    </message>
    <message>
        <source>Block read</source>
        <translation>Bloc lu</translation>
    </message>
    <message>
        <source>Block written</source>
        <translation>Bloc écrit</translation>
    </message>
    <message>
        <source>End-of-line flag written</source>
        <translation>Bit de fin de ligne écrit</translation>
    </message>
    <message>
        <source>Height sensor read</source>
        <translation>Capteur de hauteur lu</translation>
    </message>
    <message>
        <source>Faults cleared</source>
        <translation>Défauts effacés</translation>
    </message>
    <message>
        <source>Faults read</source>
        <translation>Défauts lus</translation>
    </message>
    <message>
        <source>ECU restarted</source>
        <translation>ECU redémarrée</translation>
    </message>
    <message>
        <source>Stop lights switched</source>
        <translation>Feux stop commandés</translation>
    </message>
    <message>
        <source>There is no simulated trailer.</source>
        <translation>Il n&apos;y a pas de remorque simulée.</translation>
    </message>
    <message>
        <source>Start the program; the bench finds its trailer by itself.</source>
        <translation>Lancez le programme ; le banc trouve sa remorque tout seul.</translation>
    </message>
    <message>
        <source>Somebody else has this trailer.</source>
        <translation>Quelqu&apos;un d&apos;autre a cette remorque.</translation>
    </message>
    <message>
        <source>Close the other bench; this one takes over by itself.</source>
        <translation>Fermez l&apos;autre banc ; celui-ci prend le relais tout seul.</translation>
    </message>
    <message>
        <source>The adapter is switched off.</source>
        <translation>L&apos;interface est éteinte.</translation>
    </message>
    <message>
        <source>Switch it on.</source>
        <translation>Allumez-la.</translation>
    </message>
    <message>
        <source>No program is connected to the trailer.</source>
        <translation>Aucun programme n&apos;est connecté à la remorque.</translation>
    </message>
    <message>
        <source>Choose Restart ECU Communications there.</source>
        <translation>Choisissez-y Relancer la communication ECU.</translation>
    </message>
    <message>
        <source>The diagnostic cable is pulled.</source>
        <translation>Le câble de diagnostic est débranché.</translation>
    </message>
    <message>
        <source>Plug it in.</source>
        <translation>Branchez-le.</translation>
    </message>
    <message>
        <source>The ECU has no power.</source>
        <translation>L&apos;ECU n&apos;a pas d&apos;alimentation électrique.</translation>
    </message>
    <message>
        <source>Switch the power on.</source>
        <translation>Rétablissez l&apos;alimentation électrique.</translation>
    </message>
    <message>
        <source>The program is connected and waits for you.</source>
        <translation>Le programme est connecté et vous attend.</translation>
    </message>
    <message>
        <source>Release the pedal before you sign the trailer off.</source>
        <translation>Relâchez la pédale avant de valider la remorque.</translation>
    </message>
    <message>
        <source>Fill the reservoir before you sign the trailer off.</source>
        <translation>Remplissez le réservoir d&apos;air avant de valider la remorque.</translation>
    </message>
    <message>
        <source>Unload the trailer before you sign it off.</source>
        <translation>Déchargez la remorque avant de la valider.</translation>
    </message>
    <message>
        <source>Choose Sign-off, Begin Sign-off Procedure there.</source>
        <translation>Choisissez-y Validation, Commencer la procédure de validation.</translation>
    </message>
    <message>
        <source>The program has prepared the ECU for its work.</source>
        <translation>Le programme a préparé l&apos;ECU pour son travail.</translation>
    </message>
    <message>
        <source>Read its screen and go on there.</source>
        <translation>Lisez son écran et continuez-y.</translation>
    </message>
    <message>
        <source>The program waits until there is no control pressure (below 2.9 psi).</source>
        <translation>Le programme attend qu&apos;il n&apos;y ait plus de pression de commande (moins de 2.9 psi).</translation>
    </message>
    <message>
        <source>Release the pedal.</source>
        <translation>Relâchez la pédale.</translation>
    </message>
    <message>
        <source>The program waits for supply pressure above 72.5 psi.</source>
        <translation>Le programme attend une pression d&apos;alimentation de plus de 72.5 psi.</translation>
    </message>
    <message>
        <source>Fill the reservoir.</source>
        <translation>Remplissez le réservoir d&apos;air.</translation>
    </message>
    <message>
        <source>The program waits for bellows pressure above 2.17 psi.</source>
        <translation>Le programme attend une pression de soufflet de plus de 2.17 psi.</translation>
    </message>
    <message>
        <source>The bellows have no air: mend the defect.</source>
        <translation>Les soufflets n&apos;ont pas d&apos;air : réparez la défectuosité.</translation>
    </message>
    <message>
        <source>The program waits for you, or for control pressure above 80 psi.</source>
        <translation>Le programme vous attend, ou une pression de commande de plus de 80 psi.</translation>
    </message>
    <message>
        <source>Read its screen; in the redundancy test press the pedal to 90 psi.</source>
        <translation>Lisez son écran ; pour le test de redondance, appuyez sur la pédale à 90 psi.</translation>
    </message>
    <message>
        <source>The program takes over the brakes.</source>
        <translation>Le programme prend la main sur les freins.</translation>
    </message>
    <message>
        <source>Wait.</source>
        <translation>Attendez.</translation>
    </message>
    <message>
        <source>The program tests the brake pressures.</source>
        <translation>Le programme teste les pressions de freinage.</translation>
    </message>
    <message>
        <source>Leave the pedal alone and wait.</source>
        <translation>Ne touchez pas à la pédale et attendez.</translation>
    </message>
    <message>
        <source>The brake pressures are tested.</source>
        <translation>Les pressions de freinage sont testées.</translation>
    </message>
    <message>
        <source>The brake pressures are tested; the redundancy test wants supply above 80 psi.</source>
        <translation>Les pressions de freinage sont testées ; le test de redondance demande une alimentation de plus de 80 psi.</translation>
    </message>
    <message>
        <source>The brake pressures are tested; the redundancy test wants control pressure above 80 psi.</source>
        <translation>Les pressions de freinage sont testées ; le test de redondance demande une pression de commande de plus de 80 psi.</translation>
    </message>
    <message>
        <source>Press the pedal to 90 psi and hold it.</source>
        <translation>Appuyez sur la pédale à 90 psi et maintenez-la.</translation>
    </message>
    <message>
        <source>The redundancy test waits for supply pressure above 79.75 psi.</source>
        <translation>Le test de redondance attend une pression d&apos;alimentation de plus de 79.75 psi.</translation>
    </message>
    <message>
        <source>The redundancy test waits for control pressure above 75.4 psi.</source>
        <translation>Le test de redondance attend une pression de commande de plus de 75.4 psi.</translation>
    </message>
    <message>
        <source>The program compares the brake pressures with the pedal&apos;s.</source>
        <translation>Le programme compare les pressions de freinage à celle de la pédale.</translation>
    </message>
    <message>
        <source>Keep the pedal pressed until its screen has closed.</source>
        <translation>Maintenez la pédale appuyée jusqu&apos;à ce que son écran se ferme.</translation>
    </message>
    <message>
        <source>The redundancy test has ended.</source>
        <translation>Le test de redondance est terminé.</translation>
    </message>
    <message>
        <source>Release the pedal, then read the program&apos;s message.</source>
        <translation>Relâchez la pédale, puis lisez le message du programme.</translation>
    </message>
    <message>
        <source>The sensor test wants supply pressure above 72.5 psi.</source>
        <translation>Le test des capteurs demande une pression d&apos;alimentation de plus de 72.5 psi.</translation>
    </message>
    <message>
        <source>Read the program&apos;s message and press OK.</source>
        <translation>Lisez le message du programme et appuyez sur OK.</translation>
    </message>
    <message>
        <source>The sensor test waits for a wheel, and the parking brake holds them all.</source>
        <translation>Le test des capteurs attend une roue, et le frein de stationnement les retient toutes.</translation>
    </message>
    <message>
        <source>Release the parking brake.</source>
        <translation>Desserrez le frein de stationnement.</translation>
    </message>
    <message>
        <source>The program brakes and frees the wheels.</source>
        <translation>Le programme freine et libère les roues.</translation>
    </message>
    <message>
        <source>Wait until a letter is yellow there.</source>
        <translation>Attendez qu&apos;une lettre y soit jaune.</translation>
    </message>
    <message>
        <source>The wheel turns.</source>
        <translation>La roue tourne.</translation>
    </message>
    <message>
        <source>Watch the program&apos;s screen.</source>
        <translation>Observez l&apos;écran du programme.</translation>
    </message>
    <message>
        <source>The program frees a wheel.</source>
        <translation>Le programme libère une roue.</translation>
    </message>
    <message>
        <source>Wait until it can be turned.</source>
        <translation>Attendez qu&apos;elle puisse tourner.</translation>
    </message>
    <message>
        <source>The sensor test waits for the wheel of the yellow letter.</source>
        <translation>Le test des capteurs attend la roue de la lettre jaune.</translation>
    </message>
    <message>
        <source>Spin wheel %1 (sensor %2): click it, or press %1.</source>
        <translation>Faites tourner la roue %1 (capteur %2) : cliquez dessus ou appuyez sur %1.</translation>
    </message>
    <message>
        <source>The sensor test has ended.</source>
        <translation>Le test des capteurs est terminé.</translation>
    </message>
    <message>
        <source>The lamp test has ended.</source>
        <translation>Le test du voyant est terminé.</translation>
    </message>
    <message>
        <source>The program blinks the warning lamp and asks whether you see it.</source>
        <translation>Le programme fait clignoter le voyant d&apos;alerte et demande si vous le voyez.</translation>
    </message>
    <message>
        <source>It blinks here: answer Yes.</source>
        <translation>Il clignote ici : répondez Oui.</translation>
    </message>
    <message>
        <source>It does not blink here: answer No.</source>
        <translation>Il ne clignote pas ici : répondez Non.</translation>
    </message>
    <message>
        <source>Watch the lamp.</source>
        <translation>Observez le voyant.</translation>
    </message>
    <message>
        <source>The calibration has ended.</source>
        <translation>La calibration est terminée.</translation>
    </message>
    <message>
        <source>The program waits for the height sensor&apos;s calibration.</source>
        <translation>Le programme attend la calibration du capteur de hauteur.</translation>
    </message>
    <message>
        <source>The sensor tells nothing: plug it in.</source>
        <translation>Le capteur ne dit rien : branchez-le.</translation>
    </message>
    <message>
        <source>Unload the trailer.</source>
        <translation>Déchargez la remorque.</translation>
    </message>
    <message>
        <source>Bring the lever to the horizontal.</source>
        <translation>Mettez le levier à l&apos;horizontale.</translation>
    </message>
    <message>
        <source>Press Calibrate height sensor c-d there.</source>
        <translation>Appuyez-y sur Calibrer le capteur de hauteur c-d.</translation>
    </message>
    <message>
        <source>The height sensor&apos;s calibration was commanded.</source>
        <translation>La calibration du capteur de hauteur a été commandée.</translation>
    </message>
    <message>
        <source>The program writes the end-of-line flag and restarts the ECU.</source>
        <translation>Le programme écrit le bit de fin de ligne et redémarre l&apos;ECU.</translation>
    </message>
    <message>
        <source>Wait: this takes ten seconds.</source>
        <translation>Attendez : cela prend dix secondes.</translation>
    </message>
    <message>
        <source>The trailer is signed off.</source>
        <translation>La remorque est validée.</translation>
    </message>
    <message>
        <source>Save and print its report in the program.</source>
        <translation>Enregistrez et imprimez son rapport dans le programme.</translation>
    </message>
    <message>
        <source>Choose another trailer, or try what you like.</source>
        <translation>Choisissez une autre remorque ou essayez ce que vous voulez.</translation>
    </message>
    <message>
        <source>The end-of-line flag says that the trailer has not passed.</source>
        <translation>Le bit de fin de ligne indique un échec de la remorque.</translation>
    </message>
    <message>
        <source>The program has read the parameters.</source>
        <translation>Le programme a lu les paramètres.</translation>
    </message>
    <message>
        <source>The program writes the parameters.</source>
        <translation>Le programme écrit les paramètres.</translation>
    </message>
    <message>
        <source>The program switches the stop lights.</source>
        <translation>Le programme commande les feux stop.</translation>
    </message>
    <message>
        <source>Watch them here.</source>
        <translation>Observez-les ici.</translation>
    </message>
    <message>
        <source>The program works with the recorder&apos;s data.</source>
        <translation>Le programme travaille sur les données de l&apos;enregistreur.</translation>
    </message>
    <message>
        <source>Control pressure sensor</source>
        <translation>Capteur de pression de commande</translation>
    </message>
    <message>
        <source>Supply pressure sensor</source>
        <translation>Capteur de pression d&apos;alimentation</translation>
    </message>
    <message>
        <source>Bellows pressure sensor</source>
        <translation>Capteur de pression du soufflet</translation>
    </message>
    <message>
        <source>Modulator</source>
        <translation>Modulateur</translation>
    </message>
    <message>
        <source>Brake pressure sensor</source>
        <translation>Capteur de pression de freinage</translation>
    </message>
    <message>
        <source>Redundancy path</source>
        <translation>Voie de redondance</translation>
    </message>
    <message>
        <source>Sensor cables exchanged</source>
        <translation>Câbles de capteurs intervertis</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Capteur de roue</translation>
    </message>
    <message>
        <source>Wheel without brake</source>
        <translation>Roue sans frein</translation>
    </message>
    <message>
        <source>Brake mode ignored</source>
        <translation>Mode de freinage ignoré</translation>
    </message>
    <message>
        <source>Load ignored</source>
        <translation>Charge ignorée</translation>
    </message>
</context>
</TS>
