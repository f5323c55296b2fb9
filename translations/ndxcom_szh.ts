<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="szh" sourcelanguage="it">
<context>
    <name>QFileSharing</name>
    <message>
        <source>Il progetto risulta in uso da:
Computer: %1	Utente: %2
Vuoi aprirlo con accesso in lettura ?</source>
        <translation>该项目正在被以下用户使用：
计算机：%1	用户：%2
是否以只读方式打开？</translation>
    </message>
    <message>
        <source>Il progetto è aperto in sola lettura.
 Vuoi salvarlo cambiandogli il nome ?</source>
        <translation>该项目以只读方式打开。
是否以新名称另存？</translation>
    </message>
    <message>
        <source>Attenzione: progetto in uso!!
Obbligatorio cambiargli il nome!!</source>
        <translation>注意：项目正在使用中！
必须更改名称！</translation>
    </message>
    <message>
        <source>Il progetto è bloccato da:
Computer: %1.
Utente: %2.
Vuoi sbloccarlo ?</source>
        <translation>该项目已被以下用户锁定：
计算机：%1。
用户：%2。
是否解除锁定？</translation>
    </message>
</context>
<context>
    <name>QNodrixCom</name>
    <message>
        <source>Piano cilindro</source>
        <translation>针筒平面</translation>
    </message>
    <message>
        <source>Piano BodyKnit</source>
        <translation>BodyKnit 平面</translation>
    </message>
    <message>
        <source>Piano BodyMap</source>
        <translation>BodyMap 平面</translation>
    </message>
    <message>
        <source>Piano BodyShape</source>
        <translation>BodyShape 平面</translation>
    </message>
    <message>
        <source>Piano maglia</source>
        <translation>线圈平面</translation>
    </message>
    <message>
        <source>Piano guidafili</source>
        <translation>导纱器平面</translation>
    </message>
    <message>
        <source>Piano comandi</source>
        <translation>指令平面</translation>
    </message>
    <message>
        <source>Inserisci Pat</source>
        <translation>插入 Pat</translation>
    </message>
    <message>
        <source>Sostituisci Pat</source>
        <translation>替换 Pat</translation>
    </message>
    <message>
        <source>Modifica Pat</source>
        <translation>修改 Pat</translation>
    </message>
    <message>
        <source>Copia Pat</source>
        <translation>复制 Pat</translation>
    </message>
    <message>
        <source>Incolla Pat</source>
        <translation>粘贴 Pat</translation>
    </message>
    <message>
        <source>Salva con Nome Pat</source>
        <translation>Pat 另存为</translation>
    </message>
    <message>
        <source>Rimuovi Pat</source>
        <translation>移除 Pat</translation>
    </message>
    <message>
        <source>Visualizza Pat</source>
        <translation>查看 Pat</translation>
    </message>
    <message>
        <source>Sostituisci GDF</source>
        <translation>替换 GDF</translation>
    </message>
    <message>
        <source>0 Fili</source>
        <translation>0 根纱</translation>
    </message>
    <message>
        <source>1 Filo</source>
        <translation>1 根纱</translation>
    </message>
    <message>
        <source>2 Fili</source>
        <translation>2 根纱</translation>
    </message>
    <message>
        <source>3 Fili</source>
        <translation>3 根纱</translation>
    </message>
</context>
<context>
    <name>QNodrixMessageBox</name>
    <message>
        <source>Si</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Ignora</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>ADATTA
Acquisizione SCS</source>
        <translation>适配
SCS 采集</translation>
    </message>
    <message>
        <source>ANNULLA
Modifica</source>
        <translation>取消
修改</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Dettagli</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Salva con nome</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Errore</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Classe:	%1
Versione:	%2
Versione caricata:	%3
Funzione:	%4

Messaggio:	%5
</source>
        <translation>类：	%1
版本：	%2
已加载版本：	%3
函数：	%4

消息：	%5
</translation>
    </message>
    <message>
        <source>Classe:	%1
Funzione:	%2

Messaggio:	%3
</source>
        <translation>类：	%1
函数：	%2

消息：	%3
</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Informazione</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>%1
</source>
        <translation>%1
</translation>
    </message>
    <message>
        <source>Attenzione:
questo software macchina richiede sia installata 
la Piattaforma Nodrix versione %1 o superiore 
Non è possibile continuare senza aggiornare la Piattaforma !</source>
        <translation>注意：
此机器软件需要安装
Nodrix 平台 %1 或更高版本。
不更新平台将无法继续！</translation>
    </message>
    <message>
        <source>Continua</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Annulla</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Attenzione:
Selezionando &apos;Continua&apos; si renderà possibile
entrare in modalità &apos;PIANO COMANDI LIBERO&apos; !
Si avverte che tale modalità è consigliata
ai soli UTENTI ESPERTI !!!</source>
        <translation>注意：
选择“继续”后将可以
进入“自由指令平面”模式！
请注意，该模式仅建议
资深用户使用！</translation>
    </message>
    <message>
        <source>Attenzione:
Stai entrando sul &apos;Piano Comandi Manuale&apos; 
   ALLINEATO   al &apos;Piano Comandi Automatico&apos;:
le modifiche fatte al &apos;Piano Comandi Manuale&apos;
potranno essere recuperate.</source>
        <translation>注意：
您正在进入与“自动指令平面”
保持同步的“手动指令平面”：
对“手动指令平面”所做的修改
将可以恢复。</translation>
    </message>
    <message>
        <source>Attenzione:
Il &apos;PIANO COMANDI LIBERO&apos; è stato modificato!.
Vuoi salvare le modifiche fatte ?</source>
        <translation>注意：
“自由指令平面”已被修改！
是否保存所做的修改？</translation>
    </message>
    <message>
        <source>Attenzione:
Modalità &apos;PIANO COMANDI LIBERO&apos;
   NON CONFERMATA CON OK ! 
Sei sicuro di voler uscire ?</source>
        <translation>注意：
“自由指令平面”模式
未通过 OK 确认！
确定要退出吗？</translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
NON sono state applicate ! 
Continuando verranno PERSE. Sei sicuro di voler uscire ?</source>
        <translation>注意：
在“自由指令平面”上所做的修改
尚未应用！
继续操作将丢失这些修改。确定要退出吗？</translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
     NON sono state confermate con Ok! 
Continuando verranno Perse. Sei sicuro di voler uscire ?</source>
        <translation>注意：
在“自由指令平面”上所做的修改
尚未通过 OK 确认！
继续操作将丢失这些修改。确定要退出吗？</translation>
    </message>
    <message>
        <source>Attenzione:
Prima di uscire dalla modalità &apos;PIANO COMANDI LIBERO&apos;
è necessario completare e chiudere la finestra Report !</source>
        <translation>注意：
退出“自由指令平面”模式之前，
必须先完成并关闭 Report 窗口！</translation>
    </message>
    <message>
        <source>Attenzione:
Sono state rilevate modifiche al Setup del progetto !
L&apos;ingresso in modalità Piano Comandi Libero comporta:
- riallineamento del Piano Comandi all&apos;ultima elaborazione automatica
- cancellazione dei comandi manuali non congruenti con i dati di Setup
Vuoi continuare ?</source>
        <translation>注意：
检测到项目的 Setup 已被修改！
进入自由指令平面模式将会：
- 使指令平面重新与最近一次自动处理的结果同步
- 删除与 Setup 数据不一致的手动指令
是否继续？</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile agire sui comandi con il Report attivo!
</source>
        <translation>注意：
Report 处于活动状态时无法操作指令！
</translation>
    </message>
    <message>
        <source>Attenzione:
NESSUN comando è stato recuperato.
Uscendo non sarà più possibile alcun recupero.
Sei sicuro di voler uscire ?</source>
        <translation>注意：
没有恢复任何指令。
退出后将无法再进行任何恢复。
确定要退出吗？</translation>
    </message>
    <message>
        <source>Attenzione:
Per eliminare un comando spostato
è necessario prima annullare lo spostamento!
</source>
        <translation>注意：
要删除已移动的指令，
必须先撤销移动！
</translation>
    </message>
    <message>
        <source>Attenzione:
SCS &apos;Piano Comandi Manuale&apos; in Controllo Taglia !
L&apos;Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation>注意：
“手动指令平面”的 SCS 处于尺码控制状态！
SCS 采集将被删除！
是否继续？</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi guidafilo con accessori associati!
non compatibili con quelli già in uso nel progetto
%1
I comandi di questi accessori verranno ignorati !
Vuoi continuare ?</source>
        <translation>注意：
存在关联了附件的导纱器指令，
这些附件与项目中已使用的附件不兼容：
%1
这些附件的指令将被忽略！
是否继续？</translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente una asociazione 
PAT manuale al colore %1 da importare !
Il colore importato verrà sostituito 
con il colore selezionato o con il primo libero !
</source>
        <translation>注意：
项目中已存在要导入的颜色 %1 的
手动 PAT 关联！
导入的颜色将被替换为
所选颜色或第一个空闲颜色！
</translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente un PAT manuale con nome %1 !
Il PAT importato verrà rinominato e associato come : %2 !
</source>
        <translation>注意：
项目中已存在名为 %1 的手动 PAT！
导入的 PAT 将被重命名并关联为：%2！
</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute deve essere almeno di %1 passi!</source>
        <translation>注意：
4 路区域至少应有 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra 2 zone a 4 cadute ci devono essere almeno %1 passi!</source>
        <translation>注意：
两个 4 路区域之间至少应相隔 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultima zona e la fine disegno ci devono essere almeno %1 passi!</source>
        <translation>注意：
最后一个区域与花型结尾之间至少应相隔 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire una zona sovrapposta alle esistenti!</source>
        <translation>注意：
无法插入与现有区域重叠的区域！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto alla zona!</source>
        <translation>注意：
无法向该区域添加所请求的步！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto alla zona!</source>
        <translation>注意：
无法从该区域移除所请求的步！</translation>
    </message>
    <message>
        <source>Attenzione:
Un Bordo deve essere almeno di %1 passi !</source>
        <translation>注意：
扎口至少应有 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra due bordi ci devono essere almeno %1 passi non bordo !</source>
        <translation>注意：
两个扎口之间至少应有 %1 个非扎口步！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto al bordo !</source>
        <translation>注意：
无法向扎口添加所请求的步！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto al bordo !</source>
        <translation>注意：
无法从扎口移除所请求的步！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultimo bordo e la fine disegno ci devono essere almeno %1 passi !</source>
        <translation>注意：
最后一个扎口与花型结尾之间至少应相隔 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Il primo bordo deve partire al passo 1 oppure dopo il passo %1!</source>
        <translation>注意：
第一个扎口必须从第 1 步开始，或在第 %1 步之后开始！</translation>
    </message>
    <message>
        <source>Attenzione:
Il bordo che inizia al passo %1 NON ha il check del guidafilo abilitato!</source>
        <translation>注意：
从第 %1 步开始的扎口未启用导纱器检查！</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche precedentemente apportate al
Piano Comandi verranno Eliminate !!
Vuoi continuare ?</source>
        <translation>注意：
之前对指令平面
所做的修改将被删除！
是否继续？</translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;articolo deve iniziare con un bordo uncini !</source>
        <translation>注意：
织件必须以钩子扎口开始！</translation>
    </message>
    <message>
        <source>Attenzione:
Fili in lavoro non definiti !</source>
        <translation>注意：
未定义工作纱线！</translation>
    </message>
    <message>
        <source>Attenzione:
- Durante lo Scarico Maglia ad 1 filo, su tutte le cadute, non è possibile avere
  il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

- Durante lo Scarico Maglia a 2 fili, su tutte le cadute, non è possibile avere
  entrambi i guidafili associati ad una pinza !

- Durante lo Scarico Maglia a 2 fili, solo sulla 5a caduta, non è possibile avere
  un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>注意：
- 单纱落布时，所有成圈系统上都不允许
  第 2 组导纱器（导纱器 4-5-6）关联到夹纱器！

- 双纱落布时，所有成圈系统上都不允许
  两个导纱器都关联到夹纱器！

- 双纱落布时，仅在成圈系统 5 上不允许
  第 2 组的导纱器（导纱器 4-5-6）关联到夹纱器！

必须在导纱器图中选择一个导纱器，用它执行
换纱以结束落布。</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia ad 1 filo, sulla caduta %1, non è possibile avere
il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>注意：
单纱落布时，在成圈系统 %1 上不允许
第 2 组导纱器（导纱器 4-5-6）关联到夹纱器！

必须在导纱器图中选择一个导纱器，用它执行
换纱以结束落布。</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla caduta %1, non è possibile avere
entrambi i guidafili associati ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>注意：
双纱落布时，在成圈系统 %1 上不允许
两个导纱器都关联到夹纱器！

必须在导纱器图中选择一个导纱器，用它执行
换纱以结束落布。</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non è possibile avere
un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>注意：
双纱落布时，在成圈系统 5 上不允许
第 2 组的导纱器（导纱器 4-5-6）关联到夹纱器！

必须在导纱器图中选择一个导纱器，用它执行
换纱以结束落布。</translation>
    </message>
    <message>
        <source>Attenzione:
Punto maglia &apos;%1&apos; non identificato nel Pat :
%2</source>
        <translation>注意：
在 Pat 中无法识别针法“%1”：
%2</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire zone maglie sul passo !</source>
        <translation>注意：
无法在该步上插入线圈区域！</translation>
    </message>
    <message>
        <source>Attenzione:
Non ci sono alimentatori %1 attivi nella zona !</source>
        <translation>注意：
该区域中没有已启用的 %1 送纱器！</translation>
    </message>
    <message>
        <source>Attenzione:
Platò abbassato con uncini attivi al passo %1 !</source>
        <translation>注意：
第 %1 步：钩子处于工作状态时针盘已降下！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire il comando platò sul passo !</source>
        <translation>注意：
无法在该步上插入针盘指令！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile avere la camme rientro parziale uncini
 insieme alla camme uscita uncini al passo %1 !</source>
        <translation>注意：
钩子部分收回三角不能在第 %1 步
与钩子伸出三角同时使用！</translation>
    </message>
    <message>
        <source>Attenzione:
Passo %1: Platò Motorizzato basso/alto con uncini attivi!</source>
        <translation>注意：
第 %1 步：钩子处于工作状态时电动针盘处于低位/高位！</translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Platò Motorizzato!&apos;</source>
        <translation>注意：
无法在该步上插入“电动针盘”指令！</translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Stop Espulsore Articolo!&apos;</source>
        <translation>注意：
无法在该步上插入“停止织件顶出器”指令！</translation>
    </message>
    <message>
        <source>Attenzione: Piano Body n. %1
Colore %2 non assegnato</source>
        <translation>注意：第 %1 号 Body 平面
颜色 %2 未分配</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone maglia</source>
        <translation>注意：
不存在线圈区域</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyMap</source>
        <translation>注意：
不存在 BodyMap 送纱器区域</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyShape</source>
        <translation>注意：
不存在 BodyShape 送纱器区域</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona maglie per il passo %1</source>
        <translation>注意：
第 %1 步没有线圈区域</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyMap per il passo %1</source>
        <translation>注意：
第 %1 步没有 BodyMap 送纱器区域</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyShape per il passo %1</source>
        <translation>注意：
第 %1 步没有 BodyShape 送纱器区域</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Motor=%1 Rango=%2 Ago=%3</source>
        <translation>注意：
不平衡值低于允许的最小值
电机=%1 横列=%2 针=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Motore=%1 Rango=%2 Ago=%3</source>
        <translation>注意：
不平衡值高于允许的最大值
电机=%1 横列=%2 针=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation>注意：
不平衡值低于允许的最小值
送纱器=%1 横列=%2 针=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation>注意：
不平衡值高于允许的最大值
送纱器=%1 横列=%2 针=%3</translation>
    </message>
    <message>
        <source>Attenzione!
Non è stato inserito alcun nome !</source>
        <translation>注意！
未输入任何名称！</translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina 
 NON deve essere più lungo di %1 caratteri</source>
        <translation>注意：该机器的项目名称
长度不得超过 %1 个字符</translation>
    </message>
    <message>
        <source>Attenzione:
Carattere &gt;%1&lt; non ammesso.</source>
        <translation>注意：
不允许使用字符 &gt;%1&lt;。</translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Nodrix NON può contenere i seguenti caratteri:
	 %1</source>
        <translation>注意：
Nodrix 项目名称不能包含以下字符：
	 %1</translation>
    </message>
    <message>
        <source>Attenzione:
Ammessi solo caratteri occidentali</source>
        <translation>注意：
仅允许使用西文字符</translation>
    </message>
    <message>
        <source>Attenzione:
Ammesso nome progetto solo con estensione .ndx minuscolo</source>
        <translation>注意：
项目名称只允许使用小写扩展名 .ndx</translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina
 NON deve essere più lungo di %1 caratteri</source>
        <translation>注意：该机器的项目名称
长度不得超过 %1 个字符</translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Veskar NON può contenere i seguenti caratteri:
	 %1</source>
        <translation>注意：
Veskar 项目名称不能包含以下字符：
	 %1</translation>
    </message>
    <message>
        <source>Attenzione!
Applicazione macchina non definita</source>
        <translation>注意！
未定义机器应用程序</translation>
    </message>
    <message>
        <source>Attenzione!
Il progetto è di una macchina diversa da quella dell&apos;applicazione attiva!</source>
        <translation>注意！
该项目所属的机器与当前应用程序的机器不同！</translation>
    </message>
    <message>
        <source>Attenzione!
L&apos;ultimo percorso selezionato NON risulta accessibile !!!
Verrà selezionato il percorso di default !!!</source>
        <translation>注意！
上次选择的路径无法访问！
将选择默认路径！</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte NON sono state salvate.
Continuando verranno perse.
Sei sicuro di voler uscire ?</source>
        <translation>注意：
所做的修改尚未保存。
继续操作将丢失这些修改。
确定要退出吗？</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte non sono state confermate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation>注意：
所做的修改尚未确认。
继续操作将丢失这些修改。确定要退出吗？</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte e confermate non sono state salvate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation>注意：
已确认的修改尚未保存。
继续操作将丢失这些修改。确定要退出吗？</translation>
    </message>
    <message>
        <source>Attenzione:
Con il pulsante &apos;Ripristina&apos;:
-Saranno eliminate tutte le modifiche fatte dall&apos;utente!
-Saranno ripristinati tutti i default del Nodrix!
Sei sicuro di voler continuare ?</source>
        <translation>注意：
使用“恢复”按钮将会：
- 删除用户所做的全部修改！
- 恢复 Nodrix 的全部默认设置！
确定要继续吗？</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi non recuperati!
Continuando verranno persi.
Sei sicuro di voler uscire ?</source>
        <translation>注意：
存在未恢复的指令！
继续操作将丢失这些指令。
确定要退出吗？</translation>
    </message>
    <message>
        <source>Impossibile leggere il file di configurazione macchina %1:
%2.</source>
        <translation>无法读取机器配置文件 %1：
%2。</translation>
    </message>
    <message>
        <source>Impossibile leggere il file macchina : %1</source>
        <translation>无法读取机器文件：%1</translation>
    </message>
    <message>
        <source>File macchina : %1
versione installata : %2  incompatibile 
con versione progetto : %3</source>
        <translation>机器文件：%1
已安装版本：%2 与
项目版本：%3 不兼容</translation>
    </message>
    <message>
        <source>File macchina non riconosciuto</source>
        <translation>无法识别机器文件</translation>
    </message>
    <message>
        <source>Macchina o costruttore non supportati</source>
        <translation>不支持该机器或制造商</translation>
    </message>
    <message>
        <source>Impossibile caricare i files macchina !</source>
        <translation>无法加载机器文件！</translation>
    </message>
    <message>
        <source>Files macchina presenti nel progetto
non congruenti con quelli installati !</source>
        <translation>项目中的机器文件
与已安装的机器文件不一致！</translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- %2
linea : %3 --- colonna : %4</source>
        <translation>XML 文件出错：%1 --- %2
行：%3 --- 列：%4</translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- linea %2
tag : %3
attributi : %4 --- %5</source>
        <translation>XML 文件出错：%1 --- 第 %2 行
标记：%3
属性：%4 --- %5</translation>
    </message>
    <message>
        <source>Nodrix</source>
        <translation>Nodrix</translation>
    </message>
    <message>
        <source>Impossibile aprire il file %1:
%2</source>
        <translation>无法打开文件 %1：
%2</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1:
%2</source>
        <translation>无法读取文件 %1：
%2</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1:
%2</source>
        <translation>无法写入文件 %1：
%2</translation>
    </message>
    <message>
        <source>Archivio corrotto !!</source>
        <translation>存档已损坏！</translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Status : %4</source>
        <translation>类：%1
版本：%2 --- 已加载版本：%3
Status：%4</translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Funzione : %4
Versione oggetto sconosciuta</source>
        <translation>类：%1
版本：%2 --- 已加载版本：%3
函数：%4
未知的对象版本</translation>
    </message>
    <message>
        <source>Nel pat %1 alla caduta n° %2 non è configurato il numero di fili in lavoro</source>
        <translation>Pat %1 的成圈系统 %2 未配置工作纱线数</translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia non sono sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
成圈系统 %3 上 Pat %1 和 Pat %2 中使用的某些针法需要三角动作。
只有当这些针法不在同一线圈横列上时，才能进行这些动作。
要继续，必须修改其中一个 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2
sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia distano almeno %4 passi.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
Pat %1 和 Pat %2 中使用的某些针法
在成圈系统 %3 上需要三角动作。
只有当这些针法至少相隔 %4 步时，才能进行这些动作。
要继续，必须修改其中一个 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di carico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
成圈系统 %3 上的 Pat %1 和 Pat %2 需要三角动作。
在选择挂钩时，这些动作间隔过近。
这些动作之间必须至少相隔 %4 步。
要继续，必须修改其中一个 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di scarico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
成圈系统 %3 上的 Pat %1 和 Pat %2 需要三角动作。
在选择脱钩时，这些动作间隔过近。
这些动作之间必须至少相隔 %4 步。
要继续，必须修改其中一个 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat %1 ed il Pat %2  richiedono:
- cambi Posizione del Guidafilo %3 gruppo %4
E&apos; possibile se fra questi cambi
ci sono almeno %5 aghi di distanza.
E&apos; necessario modificare il Disegno !</source>
        <translation>注意：
Pat %1 和 Pat %2 需要：
- 第 %4 组导纱器 %3 的位置更换
只有当这些更换之间
至少相隔 %5 针时才可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessari dei cambi di guidafili con sovrapposizione.
Tali movimenti non sono possibili sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
Pat %1 和 Pat %2 之间需要进行重叠的导纱器更换。
这些动作不能在同一线圈横列上进行。
要继续，必须修改其中一个 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessarie entrate o uscite di guidafili.
Tali entrate o uscite non sono possibili sullo stesso rango di maglia.
 Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
Pat %1 和 Pat %2 之间需要导纱器进入或退出。
这些进入或退出不能在同一线圈横列上进行。
要继续，必须修改其中一个 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 necessita di entrata e/o uscita di guidafili.
Tali cambi non sono possibili in presenza di camma di trattenuto.
Per procedere è necessario modificare il pat</source>
        <translation>注意：
Pat %1 需要导纱器进入和/或退出。
存在集圈三角时无法进行这些更换。
要继续，必须修改该 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Nel Disegno sono presenti Punti Maglia:
Flottato + Fuori Lavoro + Trattenuto.
E necessario eliminare uno dei tre !</source>
        <translation>注意：
花型中同时存在以下针法：
浮线 + 不编织 + 集圈。
必须删除其中一种！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo nel Primo Transfer.
E&apos; necessario modificare i Pat !</source>
        <translation>注意：
从 Pat %1 到 Pat %2 需要：
- 导纱器进入/退出/更换
这只能在第一次移圈中进行。
必须修改这些 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel Primo Transfer è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo se c&apos;è il
trasferimento di Tutti i Settori.
E&apos; necessario modificare Disegno o Pat !</source>
        <translation>注意：
第一次移圈中需要：
- 导纱器进入/退出/更换
只有在
所有针段都进行移圈时才可行。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 c&apos;è un cambio di guidafili : 
- è possibile cambiare il guidafilo 1 con il 2 o il 3
- è possibile cambiare il guidafilo 2 con il 3
- altre sequenze non sono possibili
E&apos; necessario modificare i Pat !</source>
        <translation>注意：
从 Pat %1 到 Pat %2 有一次导纱器更换：
- 导纱器 1 可以更换为 2 或 3
- 导纱器 2 可以更换为 3
- 其他顺序均不可行
必须修改这些 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Guidafilo N.%1 assegnato al primo Pat applicato :
deve essere mantenuto in Tutti i Pat successivi !
E&apos; necessario modificare Pat successivi !</source>
        <translation>注意：
分配给第一个应用的 Pat 的 %1 号导纱器：
必须在所有后续 Pat 中保持不变！
必须修改后续 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- fine movimento entrata camme Trattenuto/Scaricato
Tali movimenti non sono possibili sullo stesso Rango di Maglia.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>注意：
第 %1 步成圈系统 %2 上同时存在：
- 导纱器进入-退出-更换
- 集圈/成圈三角进入动作结束
这些动作不能在同一线圈横列上进行。
要继续，必须修改花型或相关的 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 carico uncini) sulla caduta %2
  sono presenti :
- entrata-uscita-cambio di guidafili
- camme Trattenuto/Scaricato che richiedono una uscita parziale
Tali movimenti non sono possibili sullo stesso Rango di Maglia
perchè troppo ravvicinati.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>注意：
第 %1 步（挂钩第 3 步）成圈系统 %2 上
同时存在：
- 导纱器进入-退出-更换
- 需要部分退出的集圈/成圈三角
这些动作间隔过近，
不能在同一线圈横列上进行。
要继续，必须修改花型或相关的 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 scarico uncini) sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- camme Trattenuto/Scaricato che richiedono una uscita parziale
Tali movimenti non sono possibili sullo stesso Rango di Maglia
perchè troppo ravvicinati.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>注意：
第 %1 步（脱钩第 3 步）成圈系统 %2 上同时存在：
- 导纱器进入-退出-更换
- 需要部分退出的集圈/成圈三角
这些动作间隔过近，
不能在同一线圈横列上进行。
要继续，必须修改花型或相关的 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;offset maglie per lo sbilanciamento del(i) colore(i)  %1  è stato azzerato perchè
dall&apos;ago di inizio all&apos;ago di fine del(i) colore(i) ci sono meno di %2 aghi di distanza.
In alternativa è necessario modificare il disegno!</source>
        <translation>注意：
颜色 %1 的不平衡线圈偏移量已被清零，因为
该颜色的起始针与结束针之间相隔不足 %2 针。
否则，必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Disegno Nitido&quot; richiede
il guidafilo 6 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
成圈系统 %1 上的“清晰花型”要求
在整个项目中使用导纱器 6。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
Pat“%1”和 Pat“%2”需要：
- 导纱器退出和进入
只有当这些更换之间
至少相隔 %3 针时才可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel primo e ultimo rango della caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %1 的第一个和最后一个横列中，
“清晰花型”下无法添加颜色。
参见 Pat：%2
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia:
non è possibile associare PAT
di &quot;Disegno Nitido&quot; con altri PAT.E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一线圈横列上：
不能将“清晰花型”的 PAT
与其他 PAT 关联。必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %2 挂钩的第 %1 步中，
“清晰花型”下无法添加颜色。
参见 Pat：%3
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %2 挂钩的第 %1 步中，
“清晰花型”下无法添加颜色。
参见 Pat：%3
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %1 脱钩的第 1 和第 2 步中，
“清晰花型”下无法添加颜色。
参见 Pat：%2
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %1 脱钩的第 3 步中，
“清晰花型”下无法添加颜色。
参见 Pat：%2
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Colore&quot; richiede
il guidafilo 1-2-3 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
成圈系统 %1 上的“颜色”要求
在整个项目中使用导纱器 1-2-3。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili colore
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
Pat“%1”和 Pat“%2”需要：
- 颜色导纱器退出和进入
只有当这些更换之间
至少相隔 %3 针时才可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nel primo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
从 Pat“%1”过渡到 Pat“%2”时，
在成圈系统 %3 的第一个横列中，
无法在颜色区域内添加颜色。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nell&apos;ultimo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
从 Pat“%1”过渡到 Pat“%2”时，
在成圈系统 %3 的最后一个横列中，
无法在颜色区域内添加颜色。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系统 %3 上从 Pat“%1”过渡到 Pat“%2”时
需要三角动作，
这在同一“清晰”模式内不可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;NITIDO&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系统 %3 上从 Pat“%1”过渡到 Pat“%2”时
需要三角动作，
在“清晰”模式之间，只有在 %4 步之后才可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系统 %3 上从 Pat“%1”过渡到 Pat“%2”时
需要三角动作，
这在同一“颜色”模式内不可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;COLORE&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系统 %3 上从 Pat“%1”过渡到 Pat“%2”时
需要三角动作，
在“颜色”模式之间，只有在 %4 步之后才可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系统 %3 上从 Pat“%1”过渡到 Pat“%2”时
需要导纱器动作，
这在同一“清晰”模式内不可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系统 %3 上从 Pat“%1”过渡到 Pat“%2”时
需要导纱器动作，
这在同一“颜色”模式内不可行。
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT &apos;COLORE&apos; di modalità diversa (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一线圈横列上，不能将：
“颜色”PAT（%1）与其他不同模式的“颜色”PAT（%2）关联。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT NON &apos;COLORE&apos; (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一线圈横列上，不能将：
“颜色”PAT（%1）与其他非“颜色”PAT（%2）关联。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %2 挂钩的第 %1 步中，
“颜色模式”下无法添加颜色。
参见 Pat：%3
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini per i primi %2 aghi sulla caduta %3
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %4
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %3 挂钩第 %1 步的前 %2 针中，
“颜色模式”下无法添加颜色。
参见 Pat：%4
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 del carico uncini) sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
in presenza di :
- entrate/uscite/cambi di guidafili
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %2 的第 %1 步（挂钩第 3 步）中，
“颜色模式”下无法添加颜色，
当存在以下情况时：
- 导纱器进入/退出/更换
参见 Pat：%3
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %1 脱钩的第 1 和第 2 步中，
“颜色模式”下无法添加颜色。
参见 Pat：%2
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini per i primi %1 aghi sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系统 %2 脱钩第 3 步的前 %1 针中，
“颜色模式”下无法添加颜色。
参见 Pat：%3
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con altri PAT di modalità incompatibile (%3).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一线圈横列 %1 上，不能将：
“特殊”PAT（%2）与其他模式不兼容的 PAT（%3）关联。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con guidafili incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一线圈横列 %1 上，不能将：
“特殊”PAT（%2）与导纱器不兼容的 PAT（%3）关联。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con configurazione camme incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一线圈横列 %1 上，不能将：
“特殊”PAT（%2）与三角配置不兼容的 PAT（%3）关联。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Passaggio da PAT &apos;SPECIALE&apos; (%1) rango %2 a PAT (%3)
e&apos; possibile solo dopo almeno un rango completo in modalità &apos;SPECIALE&apos;.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在横列 %2 从“特殊”PAT（%1）过渡到 PAT（%3），
只有在“特殊”模式下至少完成一个完整横列后才可行。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
从 PAT %1 到 PAT %2（横列 %3）需要：
- GR1 组导纱器 2/3 进入/退出。
只有至少相隔 %4 针时才可行！
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
从 PAT %1 到 PAT %2（横列 %3）需要：
- GR1 组导纱器 2/3 退出/进入。
只有至少相隔 %4 针时才可行！
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 allo Scarico Maglia rango %2 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %3 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
从 PAT %1 到落布（横列 %2）需要：
- GR1 组导纱器 2/3 进入/退出。
只有至少相隔 %3 针时才可行！
必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili 2 e 3 del GR1.
Non e&apos; possibile sullo stesso rango di maglia!
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>注意：
横列 %1：从特殊模式 PAT（%2）
到特殊模式 PAT（%3）需要：
- 更换 GR1 组的导纱器 2 和 3。
这不能在同一线圈横列上进行！
要继续，必须修改花型或 PAT！</translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili GR2/GR1.
E&apos; possibile solo se nell&apos;ultimo rango di maglia :
- Tutti gli aghi sono in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>注意：
横列 %1：从特殊模式 PAT（%2）
到特殊模式 PAT（%3）需要：
- 更换 GR2/GR1 组导纱器。
只有当最后一个线圈横列满足以下条件时才可行：
- 所有针都处于特殊模式
要继续，必须修改花型或 PAT！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel %1 passo Carico Uncini sulla caduta 5 (rango %2)
con presenza di PAT in modalità SPECIALE (%3) :
- Tutti gli aghi devono essere in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>注意：
在成圈系统 5（横列 %2）挂钩的第 %1 步中，
如果存在特殊模式的 PAT（%3）：
- 所有针都必须处于特殊模式
要继续，必须修改花型或 PAT！</translation>
    </message>
    <message>
        <source>Attenzione:
Usata &quot;Camma Rientro Parziale Uncini&quot; nel Bordo n. %1.
Passo di movimento incompatibile con la dimensione del bordo.
Anticipare il movimento di %2 passo(i) o ampliare il bordo!</source>
        <translation>注意：
第 %1 号扎口中使用了“钩子部分收回三角”。
动作步与扎口尺寸不兼容。
请将动作提前 %2 步，或扩大扎口！</translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 4 cadute alla linea %2
non può essere usato in una zona a 8 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
第 %2 行的 4 路 PAT %1
不能用于 8 路区域。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 8 cadute alla linea %2
non può essere usato in una zona a 4 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
第 %2 行的 8 路 PAT %1
不能用于 4 路区域。
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o inizia al primo passo o dopo %1 passi!</source>
        <translation>注意：
4 路区域必须从第一步开始，或在 %1 步之后开始！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 8 a 4 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意（第 %1 步）：
从 8 路切换到 4 路之前的最后 3 步中：
不允许存在颜色模式或清晰模式！
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o termina all&apos;ultimo passo o %1 passi prima!</source>
        <translation>注意：
4 路区域必须在最后一步结束，或提前 %1 步结束！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 4 a 8 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意（第 %1 步）：
从 4 路切换到 8 路之前的最后 3 步中：
不允许存在颜色模式或清晰模式！
必须修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 3 passi della zona a 8 cadute !
- nel primo passo della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>注意（第 %1 步）：
从 8 路区域过渡到 4 路区域时，
带钩子的扎口不允许开始于：
- 8 路区域中的最后 3 步！
- 4 路区域中的第一步！
必须解决此冲突！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito la fine bordo con uncini
negli ultimi 3 passi della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>注意（第 %1 步）：
从 8 路区域过渡到 4 路区域时，
带钩子的扎口不允许结束于
8 路区域中的最后 3 步！
必须解决此冲突！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito la fine bordo con uncini
negli ultimi 2 passi della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>注意（第 %1 步）：
从 4 路区域过渡到 8 路区域时，
带钩子的扎口不允许结束于
4 路区域中的最后 2 步！
必须解决此冲突！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 2 passi della zona a 4 cadute !
- nel primo passo della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>注意（第 %1 步）：
从 4 路区域过渡到 8 路区域时，
带钩子的扎口不允许开始于：
- 4 路区域中的最后 2 步！
- 8 路区域中的第一步！
必须解决此冲突！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è consentito avere la Modalità Fili 0:
- nel 1° passo dopo il carico maglia !
- nell&apos;ultimo passo prima dello scarico maglia !
Per continuare è necessario modificare il Disegno !</source>
        <translation>注意：
以下位置不允许使用 0 纱线模式：
- 起针后的第 1 步！
- 落布前的最后一步！
要继续，必须修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nessuna zona SCS presente !
Per continuare è necessario inserire almeno una zona o disabilitare l&apos;SCS.
Vuoi inserire una zona iniziale ?</source>
        <translation>注意：
不存在 SCS 区域！
要继续，必须至少插入一个区域或禁用 SCS。
是否插入一个初始区域？</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti Zone SCS !
Disabilitando l&apos;SCS vuoi eliminare anche le zone ?</source>
        <translation>注意：
存在 SCS 区域！
禁用 SCS 时是否同时删除这些区域？</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Inserire/Eliminare Zone SCS:
può comportare l&apos;eliminazione
dell&apos;Acquisizione SCS !!</source>
        <translation>注意：
SCS 处于尺码控制状态！
插入/删除 SCS 区域
可能导致
SCS 采集被删除！</translation>
    </message>
    <message>
        <source>Attenzione :
SCS è in Controllo Taglia !!!
 Alcune modifiche al progetto non sono possibili !
Per sbloccarle è necessario selezionare:
&quot;Abilita Acquisizione&quot;
ed eliminare l&apos;Acquisizione SCS
Il Controllo Taglia verrà perso !</source>
        <translation>注意：
SCS 处于尺码控制状态！
无法对项目进行某些修改！
要解除限制，必须选择：
“启用采集”
并删除 SCS 采集。
尺码控制将会丢失！</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Apportando modifiche potrebbe essere richiesta l&apos;eliminazione dell&apos;Acquisizione SCS.</source>
        <translation>注意：
SCS 处于尺码控制状态！
进行修改可能需要删除 SCS 采集。</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation>注意：
SCS 处于尺码控制状态！
SCS 采集将被删除！
是否继续？</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi salvare anche l&apos;acquisizione SCS presente nel progetto ?</source>
        <translation>注意：
是否同时保存项目中的 SCS 采集？</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi Salvare le Modifiche Fatte ?</source>
        <translation>注意：
是否保存所做的修改？</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Per continuare è necessario associare tutti i Vector Active
di default ad un guidafilo o eliminare l&apos;acquisizione SCS
Vuoi eliminare Acquisizione SCS ?</source>
        <translation>注意：
SCS 处于尺码控制状态！
要继续，必须将所有默认的 Vector Active
关联到导纱器，或删除 SCS 采集。
是否删除 SCS 采集？</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Esegui solo le piccole modifiche al disegno
necessarie dopo un &quot;Crea Taglia&quot; altrimenti
&quot;Acquisizione SCS&quot; non sarà più idonea
Vuoi Continuare ?</source>
        <translation>注意：
SCS 处于尺码控制状态！
请仅对花型进行“创建尺码”后
必需的小幅修改，否则
“SCS 采集”将不再适用。
是否继续？</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Operazioni possibili:
- Adattare i dati Acq. SCS al ridimensionamento
- Annullare la modifica del ridimensionamento</source>
        <translation>注意：
SCS 处于尺码控制状态！
可执行的操作：
- 使 SCS 采集数据适配调整后的尺寸
- 取消尺寸调整</translation>
    </message>
    <message>
        <source>Attenzione:
SCS abilitato !
Non tutte le cadute abilitate al controllo nelle zone %1
hanno un alimentatore BodyScs in lavoro
Queste cadute verranno automaticamente disabilitate al controllo</source>
        <translation>注意：
SCS 已启用！
区域 %1 中并非所有已启用控制的成圈系统
都有正在工作的 BodyScs 送纱器。
这些成圈系统的控制将被自动禁用。</translation>
    </message>
    <message>
        <source>Nuova Taglia Creata con Successo !</source>
        <translation>新尺码创建成功！</translation>
    </message>
    <message>
        <source>Progetto ridimensionato con successo !</source>
        <translation>项目尺寸调整成功！</translation>
    </message>
    <message>
        <source>Ridimensionamento matrice pixel fallito !</source>
        <translation>像素矩阵尺寸调整失败！</translation>
    </message>
    <message>
        <source>Ridimensionamento piani disegno fallito !</source>
        <translation>花型平面尺寸调整失败！</translation>
    </message>
    <message>
        <source>Ridimensionamento struttura progetto fallita !</source>
        <translation>项目结构尺寸调整失败！</translation>
    </message>
    <message>
        <source>Adattamento piani disegno fallito !</source>
        <translation>花型平面适配失败！</translation>
    </message>
    <message>
        <source>IL PROGETTO SORGENTE E&apos; IN CONTROLLO TAGLIA,
I DATI DELL&apos;ACQUISIZIONE SCS SARANNO ADATTATI
AUTOMATICAMENTE AL PROGETTO DESTINAZIONE</source>
        <translation>源项目处于尺码控制状态，
SCS 采集数据将
自动适配到目标项目。</translation>
    </message>
    <message>
        <source>Attenzione :
Creazione Nuova Taglia fallita !!
Ripetere l&apos;operazione ed eventualmente
deselezionare l&apos;opzione &quot;Adatta i Ranghi&quot;</source>
        <translation>注意：
新尺码创建失败！
请重试该操作，必要时
取消选中“适配横列”选项。</translation>
    </message>
    <message>
        <source>Ridimensionamento fallito !!
Ripetere l&apos;operazione o
inserire un diverso N. ranghi.</source>
        <translation>尺寸调整失败！
请重试该操作，或
输入不同的横列数。</translation>
    </message>
    <message>
        <source>Attenzione :
Piano SCS: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone SCS !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>注意：
SCS 平面：尺寸调整需要
删除一个或多个 SCS 区域！
无法执行此操作！
请输入不同的横列数，
或修改这些区域。</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Maglia !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>注意：
指令平面：尺寸调整需要
删除一个或多个线圈区域！
无法执行此操作！
请输入不同的横列数，
或修改这些区域。</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone %1 !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>注意：
指令平面：尺寸调整需要
删除一个或多个 %1 区域！
无法执行此操作！
请输入不同的横列数，
或修改这些区域。</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Velocità !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>注意：
指令平面：尺寸调整需要
删除一个或多个速度区域！
无法执行此操作！
请输入不同的横列数，
或修改这些区域。</translation>
    </message>
    <message>
        <source>Attenzione :
dal progetto sono stati rimossi comandi
insriti manualmente dall&apos;utente.
E&apos; necessario inserirli di nuovo manualmente :
%1</source>
        <translation>注意：
已从项目中移除
用户手动插入的指令。
必须重新手动插入这些指令：
%1</translation>
    </message>
    <message>
        <source>Attenzione :
le modifiche fatte comportano :
%1
%2
</source>
        <translation>注意：
所做的修改导致：
%1
%2
</translation>
    </message>
    <message>
        <source>VUOI PASSARE IL PROGETTO IN MODALITA&apos; PROTETTA ?

Scegliendo Si: 
- il progetto verrà automaticamente salvato
- gli strumenti grafici opereranno in modalità speciale
- sarà possibile uscire da questa modalità in qualsiasi momento

Scegliendo No: 
- sul progetto si potrà operare normalmente</source>
        <translation>是否将项目切换到保护模式？

选择“是”：
- 项目将自动保存
- 图形工具将以特殊模式运行
- 可随时退出此模式

选择“否”：
- 可正常操作项目</translation>
    </message>
    <message>
        <source>- rimozione zone comandi utente</source>
        <translation>- 移除用户指令区域</translation>
    </message>
    <message>
        <source>- inserimento valori default zone comandi</source>
        <translation>- 插入指令区域默认值</translation>
    </message>
</context>
</TS>
